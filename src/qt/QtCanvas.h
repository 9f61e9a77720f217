#pragma once

#include "platform/Canvas.h"

#include <QFont>
#include <QImage>
#include <string>
#include <utility>

class QPainter;

// A canvas painted into a persistent image, pixel for pixel without antialiasing, the way a
// picture box keeps its picture. It is not a widget: refresh does nothing here, and a
// canvas shown on screen (CanvasWidget) repaints its widget instead.
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

    // Replaces the file whole or not at all.
    bool saveBitmap(const std::string& path) const override;

    const QImage& image() const { return image_; }
    // Writes the image as BMP or PNG, chosen by the file's extension; false for any other
    // extension or when the file cannot be written.
    bool saveImage(const std::string& path) const;

private:
    void setPen(QPainter& painter) const;

    QImage image_;
    QFont font_;
    int fontAscent_;
    int penX_ = 0;
    int penY_ = 0;
};
