#pragma once

#include "platform/Canvas.h"

// A canvas of a fixed size that paints nothing, for timing the geometry alone.
class BenchCanvas : public Canvas {
public:
    BenchCanvas(int width = 1600, int height = 900) : width_(width), height_(height) {}
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
