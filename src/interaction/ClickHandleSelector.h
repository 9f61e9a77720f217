#pragma once

#include "geometry/Matrix4.h"
#include "interaction/ClickHandleNothing.h"

class Transformed3d;

// What the workplane, face and solid selectors share: the crosshair, a left click that
// selects, and every other handler handing the view record back unchanged.
class ClickHandleSelector : public ClickHandleNothing {
public:
    MousePointer getMouseIcon() const override { return MousePointer::Crosshair; }
    std::optional<viewInfo> handleMouseMoveLeftClick(MouseEventArgs& args) override;
    std::optional<viewInfo> handleRightClick(MouseEventArgs& args) override;
    std::optional<viewInfo> handleMiddleClick(MouseEventArgs& args) override;
    std::optional<viewInfo> handleMouseMove(MouseEventArgs& args) override;

    // The clicked viewport's full matrix, from the canvas and the record the click carries.
    static Matrix4 fullMatrix(const MouseEventArgs& args);

protected:
    // A solid made ready for hit regions of the clicked viewport alone (the last redraw may
    // have been another viewport's): unculled, culled at that viewport's eye and transformed
    // with its full matrix.
    static void projectForClick(Transformed3d& object, const MouseEventArgs& args,
                                const Matrix4& full);
};
