#pragma once

#include "platform/Canvas.h"

// A canvas without pixels, for running the drawing code where no picture is wanted (the
// editor played without a screen, a redraw of viewports whose pictures are kept, benchmarks
// of the geometry, fuzzing): it has a size, takes the one the window's layout gives it, so
// that everything that projects onto it and picks from it works as on a real canvas, and
// draws nothing. Having no picture, it always has its kept one.
class BlankCanvas : public Canvas {
public:
    explicit BlankCanvas(int width = 0, int height = 0) : width_(width), height_(height) {}
    int scaleWidth() const override { return width_; }
    int scaleHeight() const override { return height_; }
    void polygon(const std::vector<CanvasPoint>&) override {}
    void moveTo(int, int) override {}
    void lineTo(int, int) override {}
    void textOut(int, int, const std::string&) override {}
    void clear() override {}
    void refresh() override {}
    void stretchBlitOr(const Bitmap&, int, int, int, int, int, int, int, int) override {}
    bool restorePicture() override { return true; }
    void move(int, int, int width, int height) override {
        width_ = width;
        height_ = height;
    }

private:
    int width_;
    int height_;
};
