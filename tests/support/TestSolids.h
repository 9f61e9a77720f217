#pragma once

#include "geometry/M3Ops.h"
#include "scene/Profile.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"

#include <memory>
#include <vector>

// A cube of half-size h around (cx, cy, cz) with every face listed counter-clockwise as
// seen from outside, so that its normals point outwards.
std::shared_ptr<Solid3d> makeCube(float h = 1.0f, float cx = 0, float cy = 0, float cz = 0);

// A scene object holding the solid (a cube of makeCube by default).
std::shared_ptr<Transformed3d> makeObject(std::shared_ptr<Solid3d> solid = makeCube());

// A workplane initialised with these parameters.
std::shared_ptr<WorkPlane> makeWorkPlane(float size, float xRotation, float yRotation,
                                         float offset = 0, int32_t color = 0);

// A profile through the corners; a closed one stores its first point object again last.
std::shared_ptr<Profile> makeProfile(const std::vector<Point4>& corners, bool closed = false);

// A closed square standing on a corner in the plane z = 0: (0, 0), (1, 1), (0, 2), (-1, 1).
std::shared_ptr<Profile> makeDiamondProfile();

// Maps model points straight onto the canvas: x and y scaled by `scale` and moved by
// (dx, dy), depth kept. Handy for laying out faces in canvas pixels.
Matrix4 canvasLayout(float scale = 1.0f, float dx = 0.0f, float dy = 0.0f);
