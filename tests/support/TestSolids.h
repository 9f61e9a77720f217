#pragma once

#include "geometry/M3Ops.h"
#include "scene/Solid3d.h"

#include <memory>

// A cube of half-size h around (cx, cy, cz) with every face listed counter-clockwise as
// seen from outside, so that its normals point outwards.
std::shared_ptr<Solid3d> makeCube(float h = 1.0f, float cx = 0, float cy = 0, float cz = 0);

// Maps model points straight onto the canvas: x and y scaled by `scale` and moved by
// (dx, dy), depth kept. Handy for laying out faces in canvas pixels.
Matrix4 canvasLayout(float scale = 1.0f, float dx = 0.0f, float dy = 0.0f);
