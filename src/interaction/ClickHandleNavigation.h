#pragma once

#include "interaction/ClickHandleNothing.h"

// What the three view-navigation modes share: a left drag changes the view record by the
// mouse's movement since the last position seen on the canvas (the record's anchor); the
// other handlers hand the record back unchanged.
class ClickHandleNavigation : public ClickHandleNothing {
public:
    std::optional<viewInfo> handleMouseMoveLeftClick(MouseEventArgs& args) override;
    std::optional<viewInfo> handleLeftClick(MouseEventArgs& args) override;
    std::optional<viewInfo> handleRightClick(MouseEventArgs& args) override;
    std::optional<viewInfo> handleMiddleClick(MouseEventArgs& args) override;
    std::optional<viewInfo> handleMouseMove(MouseEventArgs& args) override;
    bool navigates() const override { return true; }

protected:
    // Changes the record for a drag of (dx, dy) pixels at the given sensitivity.
    virtual void drag(ViewSpecs& specs, double sensitivity, int32_t dx, int32_t dy) const = 0;
};
