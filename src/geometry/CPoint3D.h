#pragma once

#include "geometry/PointRecord.h"

#include <string>

// One point of a profile, owning the same point record that solids use for their points.
// Profiles share these objects by reference, so a closed profile's first and last entries
// can be one and the same point.
class CPoint3D {
public:
    // The model point as listed in the profile dialog and the scene tree: X:1.5, Y:-2,Z:0.
    std::string toString() const;
    // Whole-record access for the program's own classes only (the profile, the profile
    // tool, the workplane and the extrusion copy records in and out); dialogs and views
    // read a point through its text form.
    PointRecord getRecord() const { return record; }
    void setRecord(const PointRecord& value) { record = value; }

private:
    PointRecord record;
};
