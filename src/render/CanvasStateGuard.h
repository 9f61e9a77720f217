#pragma once

#include "platform/Canvas.h"

#include <cstdint>

// Saves a canvas's fill style, draw style and fore, fill and back colours, and puts them
// back when it goes out of scope, so that a drawing routine leaves the canvas as it found
// it whatever it set and however it returns.
class CanvasStateGuard {
public:
    explicit CanvasStateGuard(Canvas& canvas)
        : canvas_(canvas), fillStyle_(canvas.fillStyle()), drawStyle_(canvas.drawStyle()),
          foreColor_(canvas.foreColor()), fillColor_(canvas.fillColor()),
          backColor_(canvas.backColor()) {}
    ~CanvasStateGuard() {
        canvas_.setFillStyle(fillStyle_);
        canvas_.setDrawStyle(drawStyle_);
        canvas_.setForeColor(foreColor_);
        canvas_.setFillColor(fillColor_);
        canvas_.setBackColor(backColor_);
    }
    CanvasStateGuard(const CanvasStateGuard&) = delete;
    CanvasStateGuard& operator=(const CanvasStateGuard&) = delete;

private:
    Canvas& canvas_;
    int fillStyle_;
    int drawStyle_;
    int32_t foreColor_;
    int32_t fillColor_;
    int32_t backColor_;
};
