#pragma once

#include "io/TavrinMeshIO.h"

#include <string>

class ClickHandleNothing;

// The texts of the status bar: what the mouse does in a mode, where the pointer is on the
// workplane, and what a file held.
namespace StatusText {

// One plain line saying what the buttons do in this mouse mode.
std::string modeHint(const ClickHandleNothing& mode);
// "x 1.25  y 0.00  z -3.50": model coordinates to two decimals, no "-0.00".
std::string pointerPosition(float x, float y, float z);
// "3 solids, 51,202 faces" (one solid, one face in the singular).
std::string solidsAndFaces(const ObjectList& solids);

} // namespace StatusText
