#pragma once

#include <string>

class frmTolvane;

// What must hold of the main window's document after anything the user does: every face's
// corners are points of its own solid; the scene tree's top-level keys run s1, s2, ...,
// w1, ... and r1, ... in tree order, one for each of the document's solids and at most one
// for each workplane and profile (Open leaves those without nodes until the next rebuild,
// and the profile being drawn joins the tree when closed); the selection holds only what the
// document holds; the current profile is one of the document's or none. Returns the first that does
// not hold, or "".
std::string brokenInvariant(const frmTolvane& form);
