// Must not build: the render basics sit below the scene and the render pipeline.
#include "render/ViewportRenderer.h"
