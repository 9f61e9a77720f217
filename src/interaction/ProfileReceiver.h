#pragma once

#include "geometry/PointRecord.h"

// What the profile drawing tool calls back on the window: every click becomes a point of
// the profile being drawn, and a middle click closes it. The window also hears where the
// pointer is, as a click there would give it.
class ProfileReceiver {
public:
    virtual ~ProfileReceiver() = default;
    virtual void addProfilePoint(const PointRecord& r) = 0;
    virtual void pointerMoved(const PointRecord& r) = 0;
    virtual bool closeProfile() = 0;
};
