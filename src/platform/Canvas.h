#pragma once

#include "platform/MousePointer.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

// A point on a canvas in whole pixels, as the polygon calls take it.
struct CanvasPoint {
    int32_t x = 0;
    int32_t y = 0;
};

// The pixels left <= x < right, top <= y < bottom; none where right <= left or bottom <= top.
struct PixelBox {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool empty() const { return right <= left || bottom <= top; }
    // Widens the box to hold other too.
    void include(const PixelBox& other) {
        if (other.empty()) {
            return;
        }
        *this = empty() ? other
                        : PixelBox{std::min(left, other.left), std::min(top, other.top),
                                   std::max(right, other.right), std::max(bottom, other.bottom)};
    }
};

// An image in memory, 0x00RRGGBB per pixel, row by row from the top.
struct Bitmap {
    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels;
};

// Fill styles of a canvas: 0 solid, 1 transparent, 2..7 hatches (7 is the diagonal cross).
enum FillStyle : int {
    FillSolid = 0,
    FillTransparent = 1,
    FillHorizontalLine = 2,
    FillVerticalLine = 3,
    FillUpwardDiagonal = 4,
    FillDownwardDiagonal = 5,
    FillCross = 6,
    FillDiagonalCross = 7,
};

// Draw styles: 0 solid line, 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot, 5 no line, 6 inside solid.
enum DrawStyle : int {
    DrawSolid = 0,
    DrawInvisible = 5,
};

// A persistent drawing surface, the picture box of a viewport. The drawing code sets
// the state (styles, colours, pointer) and restores it afterwards, so the state lives
// here, in the interface, and every implementation reads it when it paints.
// Colours are packed red + 256 * green + 65536 * blue.
class Canvas {
public:
    virtual ~Canvas() = default;

    // Drawable size in pixels.
    virtual int scaleWidth() const = 0;
    virtual int scaleHeight() const = 0;

    // Outline with the pen (fore colour, draw style), fill with the brush (fill colour,
    // fill style); a polygon is closed from the last point back to the first.
    virtual void polygon(const std::vector<CanvasPoint>& points) = 0;
    virtual void moveTo(int x, int y) = 0;
    virtual void lineTo(int x, int y) = 0;
    virtual void textOut(int x, int y, const std::string& text) = 0;
    // The size of a line of text as textOut writes it, for placing it. A canvas without a
    // font of its own writes 11-pixel text and measures it in cells 6 wide and 13 high.
    virtual int textWidth(const std::string& text) const {
        return 6 * static_cast<int>(text.size());
    }
    virtual int textHeight() const { return 13; }
    // Fills the whole canvas with the back colour.
    virtual void clear() = 0;
    // Shows what was drawn since the last refresh.
    virtual void refresh() = 0;
    // Copies a source rectangle of the image onto a destination rectangle, scaling it,
    // and combines it with what is there by a bitwise OR of the colours.
    virtual void stretchBlitOr(const Bitmap& image, int dx, int dy, int dw, int dh, int sx, int sy,
                               int sw, int sh) = 0;

    // Keeps a copy of the picture as it is now; restorePicture puts it back, and is false when
    // nothing of this size is kept. A canvas that keeps no image keeps nothing.
    virtual void keepPicture() {}
    virtual bool restorePicture() { return false; }
    // Paints the pixels of image within box whose top byte is set over the picture, the
    // image's top-left pixel on the canvas's; the others leave the picture as it is. A canvas
    // that keeps no image has nothing to paint on.
    virtual void overlayPixels(const Bitmap& /*image*/, const PixelBox& /*box*/) {}
    // Placement in the owning window, in the window's pixels; a canvas in a window takes the
    // new size. A canvas that lives in no window (a file being written) ignores it.
    virtual void move(int /*left*/, int /*top*/, int /*width*/, int /*height*/) {}
    // Writes the persistent image as a device-dependent bitmap (.bmp) file; false when it
    // could not be written, and then no partial file is left. A canvas that keeps no image
    // has nothing to write.
    virtual bool saveBitmap(const std::string& /*path*/) const { return false; }

    bool isVisible() const { return visible_; }
    virtual void setVisible(bool visible) { visible_ = visible; }

    int fillStyle() const { return fillStyle_; }
    void setFillStyle(int style) { fillStyle_ = style; }
    int drawStyle() const { return drawStyle_; }
    void setDrawStyle(int style) { drawStyle_ = style; }
    int32_t foreColor() const { return foreColor_; }
    void setForeColor(int32_t color) { foreColor_ = color; }
    int32_t fillColor() const { return fillColor_; }
    void setFillColor(int32_t color) { fillColor_ = color; }
    int32_t backColor() const { return backColor_; }
    void setBackColor(int32_t color) { backColor_ = color; }
    MousePointer mousePointer() const { return mousePointer_; }
    virtual void setMousePointer(MousePointer pointer) { mousePointer_ = pointer; }

private:
    int fillStyle_ = FillTransparent;
    int drawStyle_ = DrawSolid;
    int32_t foreColor_ = 0;
    int32_t fillColor_ = 0;
    int32_t backColor_ = 0; // viewports are black, so that white axes and grey grid stand out
    MousePointer mousePointer_ = MousePointer::Default;
    bool visible_ = true;
};
