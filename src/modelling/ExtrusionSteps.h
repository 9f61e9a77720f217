#pragma once

#include "geometry/Matrix4.h"

#include <cstdint>
#include <string>
#include <vector>

class Transformed3d;

// The matrices of an extrusion of n subdivisions. One step is the translation by the
// extrusion vector / n followed by the matrices of the list entries, each value also
// divided by n; the step is repeated and handed to the sweep as running products, so that
// every ring is the ring before it moved by one more matrix.
namespace ExtrusionSteps {

// The most matrices a sweep holds: it counts them in 16 bits.
constexpr int32_t maxMatrices = 32767;

// Appends the matrices of one list entry, Name(a,b,c): "Translate" one translation,
// "Rotate" rotations about x, y and z (radians), "Scale" one scaling, all about the world
// origin. Empty entries and other names add nothing. False, with nothing appended, for an
// entry of one of the three kinds whose values are not three numbers.
bool appendEntry(std::vector<Matrix4>& step, const std::string& entry, float n);

// How often the step is repeated after the first: n - 1 rounded, halves to even.
int32_t repeatCount(float n);

// Gives the sweep the step and r repeats of it as running products.
void setRunningProducts(Transformed3d& sweep, const std::vector<Matrix4>& step, int32_t r);

} // namespace ExtrusionSteps
