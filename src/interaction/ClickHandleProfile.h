#pragma once

#include "geometry/PointRecord.h"
#include "geometry/cMathLib.h"
#include "interaction/ClickHandleNothing.h"
#include "scene/Orientation2D.h"

#include <cstdint>
#include <optional>

class Canvas;

// The profile drawing tool: every left click becomes a point of the window's current
// profile, a middle click closes it. While the mouse moves it draws, in every viewport, a
// cyan rubber band from the last click and a read-out of where the mouse points in the world
// and how far that is from the last clicked point. It guesses from the clicks which way the
// profile turns and reports the guess through getData as one COrientation. A new tool is
// made for every profile, so everything starts afresh.
class ClickHandleProfile : public ClickHandleNothing {
public:
    void getData(std::vector<std::any>& datum, std::vector<std::any>& castGuide) override;
    MousePointer getMouseIcon() const override { return MousePointer::Crosshair; }
    std::optional<viewInfo> handleLeftClick(MouseEventArgs& args) override;
    std::optional<viewInfo> handleMiddleClick(MouseEventArgs& args) override;
    std::optional<viewInfo> handleMouseMove(MouseEventArgs& args) override;
    bool drawDatum(MouseEventArgs& args) override;

private:
    // The world point seen at canvas pixel (x, y) on the plane through the view's target:
    // the pixel at depth 0 taken back through the inverted full matrix. Model and projected
    // point are both that point. Nothing when the view cannot be inverted (a zoom of 0
    // folds the whole world onto the canvas centre).
    std::optional<PointRecord> clickMapping(const Canvas& canvas, const viewInfo& view, int32_t x,
                                            int32_t y) const;
    // The read-out lines right-aligned at the bottom right, the last on the bottom line.
    static void writeLines(Canvas& canvas, const std::vector<std::string>& lines);

    cMathLib math;
    int32_t lastClickX = -1; // -1: no click yet
    int32_t lastClickY = -1;
    PointRecord lastPoint; // as clicked, before the window moves it onto the workplane
    int32_t mouseX = 0;
    int32_t mouseY = 0;
    Orientation2D orientation;
};
