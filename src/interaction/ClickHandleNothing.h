#pragma once

#include "interaction/MouseEventArgs.h"
#include "platform/MousePointer.h"

#include <any>
#include <cstdint>
#include <optional>
#include <vector>

// A mouse mode: what presses and movements on a viewport canvas do. This class is both the
// interface and the mode that does nothing. A handler returns the view record that is to
// become the canvas's record, or nothing to leave it.
class ClickHandleNothing {
public:
    virtual ~ClickHandleNothing() = default;

    // The mode's collected data, and one sample object of the kind the data holds.
    virtual void getData(std::vector<std::any>& datum, std::vector<std::any>& castGuide);
    // The canvas pointer while the mode is in use.
    virtual MousePointer getMouseIcon() const;
    virtual std::optional<viewInfo> handleMouseMoveLeftClick(MouseEventArgs& args);
    virtual std::optional<viewInfo> handleLeftClick(MouseEventArgs& args);
    virtual std::optional<viewInfo> handleRightClick(MouseEventArgs& args);
    virtual std::optional<viewInfo> handleMiddleClick(MouseEventArgs& args);
    virtual std::optional<viewInfo> handleMouseMove(MouseEventArgs& args);
    // Paints the mode's overlay after a redraw; true when it drew something.
    virtual bool drawDatum(MouseEventArgs& args);
    // Whether a drag in this mode only moves the view (rotate, pan, zoom).
    virtual bool navigates() const { return false; }
};
