// Must not build: geometry sits below the scene layer.
#include "scene/Face3d.h"
