#pragma once

#include "interaction/ClickHandleSelector.h"

// Selects every visible face under a left click, of every solid, and paints the faces' tree
// nodes cyan.
class ClickHandleFaceSelector : public ClickHandleSelector {
public:
    // No data; the sample object says that data would be faces.
    void getData(std::vector<std::any>& datum, std::vector<std::any>& castGuide) override;
    std::optional<viewInfo> handleLeftClick(MouseEventArgs& args) override;
};
