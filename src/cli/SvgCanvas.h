#pragma once

#include "platform/Canvas.h"

#include <string>
#include <utility>
#include <vector>

// A canvas that writes its drawing calls as an SVG picture, one element per call in the order
// of the calls, so that a later element paints over an earlier one as on a real canvas.
// clear is a full-size rectangle in the back colour; it covers everything drawn before it,
// so that is dropped. A polygon is a <polygon> filled and outlined by the styles in force,
// each moveTo/lineTo segment a <line> (moveTo alone adds nothing), textOut a <text> whose top
// is at the given y. Hatched fills refer to one <pattern> per fill style and colour, defined
// once. refresh and stretchBlitOr add nothing: the picture is the file, and nothing that is
// rendered headless blits images.
class SvgCanvas : public Canvas {
public:
    SvgCanvas(int width, int height) : width_(width), height_(height) {}

    int scaleWidth() const override { return width_; }
    int scaleHeight() const override { return height_; }

    void polygon(const std::vector<CanvasPoint>& points) override;
    void moveTo(int x, int y) override;
    void lineTo(int x, int y) override;
    void textOut(int x, int y, const std::string& text) override;
    void clear() override;
    void refresh() override {}
    void stretchBlitOr(const Bitmap&, int, int, int, int, int, int, int, int) override {}
    // As a viewport of an editor played without a screen, the canvas takes the size the
    // window's layout gives it.
    void move(int, int, int width, int height) override {
        width_ = width;
        height_ = height;
    }

    // The whole picture as an SVG document.
    std::string svg() const;

private:
    std::string patternFor(int style, int32_t color);

    int width_;
    int height_;
    int penX_ = 0;
    int penY_ = 0;
    std::vector<std::string> elements_;
    std::vector<std::pair<int, int32_t>> patterns_; // (fill style, colour) in order of first use
};
