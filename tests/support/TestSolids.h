#pragma once

#include "geometry/M3Ops.h"
#include "scene/Solid3d.h"

#include <memory>

// A cube from (-h, -h, -h) to (h, h, h) with every face listed counter-clockwise as seen
// from outside, so that its normals point outwards.
std::shared_ptr<Solid3d> makeCube(float h = 1.0f);

// Maps model points straight onto the canvas: x and y scaled by `scale` and moved by
// (dx, dy), depth kept. Handy for laying out faces in canvas pixels.
Matrix4 canvasLayout(float scale = 1.0f, float dx = 0.0f, float dy = 0.0f);
