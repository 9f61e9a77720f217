#pragma once

#include "modelling/ExtrusionPreviewTarget.h"

// A main window without viewports: the extrusion's preview draws nothing (the command line,
// benchmarks and tests extrude without a screen).
class EmptyPreviewTarget : public ExtrusionPreviewTarget {
public:
    void getPicOrthoBounds(int32_t& lower, int32_t& upper) const override {
        lower = 0;
        upper = -1;
    }
    Canvas* getPicOrtho(int32_t) const override { return nullptr; }
    std::optional<viewInfo> getViewInfo(int32_t) const override { return std::nullopt; }
};
