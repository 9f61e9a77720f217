#pragma once

#include "platform/Canvas.h"

// A viewport canvas without pixels, for playing the editor without a screen where no
// picture is wanted: it takes the size the window's layout gives it, so that everything
// that projects onto it and picks from it works as on a real canvas, and draws nothing.
class BlankCanvas : public Canvas {
public:
    int scaleWidth() const override { return width_; }
    int scaleHeight() const override { return height_; }
    void polygon(const std::vector<CanvasPoint>&) override {}
    void moveTo(int, int) override {}
    void lineTo(int, int) override {}
    void textOut(int, int, const std::string&) override {}
    void clear() override {}
    void refresh() override {}
    void stretchBlitOr(const Bitmap&, int, int, int, int, int, int, int, int) override {}
    void move(int, int, int width, int height) override {
        width_ = width;
        height_ = height;
    }

private:
    int width_ = 0;
    int height_ = 0;
};
