#pragma once

#include "platform/Canvas.h"

// A canvas of a given size that keeps nothing drawn on it: a redraw that must leave the
// document as drawing would, for a picture it keeps, draws into one of these.
class NullCanvas : public Canvas {
public:
    NullCanvas(int width, int height) : width_(width), height_(height) {}
    int scaleWidth() const override { return width_; }
    int scaleHeight() const override { return height_; }
    void polygon(const std::vector<CanvasPoint>&) override {}
    void moveTo(int, int) override {}
    void lineTo(int, int) override {}
    void textOut(int, int, const std::string&) override {}
    void clear() override {}
    void refresh() override {}
    void stretchBlitOr(const Bitmap&, int, int, int, int, int, int, int, int) override {}

private:
    int width_;
    int height_;
};
