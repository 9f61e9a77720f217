#pragma once

#include "platform/Canvas.h"
#include "render/ScanlineFiller.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <string>
#include <utility>

// A canvas painted into a persistent image, pixel for pixel without antialiasing, the way a
// picture box keeps its picture. It is not a widget: refresh only ends the painting here, and
// a canvas shown on screen (CanvasWidget) repaints its widget as well.
//
// One painter stays open from the first drawing call to the refresh (or to anything that reads,
// copies or replaces the image), because opening one costs more than painting a small face.
// Solid polygons without outline, most of a redraw, bypass it (ScanlineFiller).
class QtCanvas : public Canvas {
public:
    QtCanvas(int width, int height);

    // Replaces the image by one of the new size, cleared to the back colour, keeping what
    // the old image and the new one have in common.
    void resize(int width, int height);

    // Takes the new size; the position belongs to whoever shows the image.
    void move(int left, int top, int width, int height) override;

    int scaleWidth() const override { return image_.width(); }
    int scaleHeight() const override { return image_.height(); }

    void polygon(const std::vector<CanvasPoint>& points) override;
    void moveTo(int x, int y) override;
    void lineTo(int x, int y) override;
    void textOut(int x, int y, const std::string& text) override;
    int textWidth(const std::string& text) const override;
    int textHeight() const override;
    void clear() override;
    void refresh() override;
    void stretchBlitOr(const Bitmap& image, int dx, int dy, int dw, int dh, int sx, int sy, int sw,
                       int sh) override;

    // The kept picture shares the image's pixels until either is painted on.
    void keepPicture() override;
    bool restorePicture() override;
    void overlayPixels(const Bitmap& image, const PixelBox& box) override;
    // Replaces the file whole or not at all.
    bool saveBitmap(const std::string& path) const override;

    const QImage& image() const {
        endPainting();
        return image_;
    }

private:
    // The open painter, with the pen for the fore colour in the given style and the brush for
    // the fill colour and style; both are rebuilt only when they change.
    QPainter& painter(int drawStyle);
    void endPainting() const;

    QImage image_;
    QImage kept_;
    mutable QPainter painter_;
    int32_t penColor_ = 0;
    int penStyle_ = -1; // no pen set yet
    int32_t brushColor_ = 0;
    int brushStyle_ = -1; // no brush set yet
    ScanlineFiller filler_;
    std::vector<QPoint> corners_; // kept, so that a polygon allocates nothing
    QFont font_;
    int fontAscent_;
    int penX_ = 0;
    int penY_ = 0;
};
