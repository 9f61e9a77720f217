#pragma once

#include <cstdint>

// The view of one viewport: where the eye is (distance and two angles about the target),
// the projection, the picture's zoom and shift on the canvas, and the hidden-surface and
// wireframe switches. Field defaults are the start-up values; the angles are set per view.
struct ViewSpecs {
    int32_t anchorX = 0; // last mouse position seen on the canvas
    int32_t anchorY = 0;
    float shiftx = 0; // the picture moves by half the shift
    float shifty = 0;
    float zoom = 200.0f; // canvas pixels per world unit at the target plane
    bool HideSurfaces = true;
    bool wireFrame = false;
    float EyeR = 10.0f;         // eye distance from the target, also the clipping distance
    float EyeTheta = 0;         // azimuth from +x towards +z
    float EyePhi = 0;           // elevation above the x-z plane
    int32_t ProjectionType = 1; // 0 parallel, 1 perspective
    int32_t targetX = 0;
    int32_t targetY = 0;
    int32_t targetZ = 0;

    bool operator==(const ViewSpecs&) const = default;
};
