#include "qt/QtCanvas.h"

#include "geometry/PackedColor.h"
#include "io/FileOverwriter.h"
#include "io/PosixFileSystem.h"

#include <QBuffer>
#include <QByteArray>
#include <QFontMetrics>
#include <QPainter>
#include <QPoint>
#include <QString>
#include <algorithm>

namespace {

QColor toQColor(int32_t color) {
    const PackedColor c = PackedColor::split(color);
    return QColor(c.red, c.green, c.blue);
}

Qt::PenStyle penStyle(int drawStyle) {
    switch (drawStyle) {
    case 1:
        return Qt::DashLine;
    case 2:
        return Qt::DotLine;
    case 3:
        return Qt::DashDotLine;
    case 4:
        return Qt::DashDotDotLine;
    case DrawInvisible:
        return Qt::NoPen;
    default: // 0 solid and 6 inside solid: a one-pixel pen has no inside to keep to
        return Qt::SolidLine;
    }
}

Qt::BrushStyle brushStyle(int fillStyle) {
    switch (fillStyle) {
    case FillSolid:
        return Qt::SolidPattern;
    case FillHorizontalLine:
        return Qt::HorPattern;
    case FillVerticalLine:
        return Qt::VerPattern;
    case FillUpwardDiagonal:
        return Qt::BDiagPattern;
    case FillDownwardDiagonal:
        return Qt::FDiagPattern;
    case FillCross:
        return Qt::CrossPattern;
    case FillDiagonalCross:
        return Qt::DiagCrossPattern;
    default:
        return Qt::NoBrush;
    }
}

// An empty image cannot be painted on; a canvas keeps at least one pixel so that drawing
// needs no guard while its widget is collapsed.
QImage blankImage(int width, int height, int32_t backColor) {
    QImage image(std::max(width, 1), std::max(height, 1), QImage::Format_RGB32);
    image.fill(toQColor(backColor));
    return image;
}

} // namespace

QtCanvas::QtCanvas(int width, int height) : image_(blankImage(width, height, backColor())) {
    // Small, and without antialiasing: text is drawn in the fore colour alone, like the lines.
    font_.setPixelSize(11);
    font_.setStyleStrategy(QFont::NoAntialias);
    fontAscent_ = QFontMetrics(font_).ascent();
}

void QtCanvas::resize(int width, int height) {
    endPainting();
    QImage resized = blankImage(width, height, backColor());
    QPainter painter(&resized);
    painter.drawImage(0, 0, image_);
    painter.end();
    image_ = resized;
}

QPainter& QtCanvas::painter(int drawStyle) {
    if (!painter_.isActive()) {
        painter_.begin(&image_);
        painter_.setFont(font_);
        penStyle_ = -1;
        brushStyle_ = -1;
    }
    if (drawStyle != penStyle_ || foreColor() != penColor_) {
        penStyle_ = drawStyle;
        penColor_ = foreColor();
        // Without a cap, as on a classic device context, the last pixel of a line is left
        // for the next line to start from.
        painter_.setPen(QPen(toQColor(penColor_), 1, penStyle(penStyle_), Qt::FlatCap));
    }
    if (fillStyle() != brushStyle_ || fillColor() != brushColor_) {
        brushStyle_ = fillStyle();
        brushColor_ = fillColor();
        // Hatches paint only their lines: the transparent background mode leaves the gaps.
        painter_.setBrush(QBrush(toQColor(brushColor_), brushStyle(brushStyle_)));
    }
    return painter_;
}

void QtCanvas::endPainting() const {
    if (painter_.isActive()) {
        painter_.end();
    }
}

void QtCanvas::polygon(const std::vector<CanvasPoint>& points) {
    if (points.empty()) {
        return;
    }
    if (fillStyle() == FillSolid && drawStyle() == DrawInvisible) {
        const PackedColor c = PackedColor::split(fillColor());
        filler_.fill(reinterpret_cast<uint32_t*>(image_.bits()),
                     static_cast<int>(image_.bytesPerLine() / 4), image_.width(), image_.height(),
                     points, qRgb(c.red, c.green, c.blue));
        return;
    }
    corners_.clear();
    for (const CanvasPoint& p : points) {
        corners_.emplace_back(p.x, p.y);
    }
    painter(drawStyle())
        .drawPolygon(corners_.data(), static_cast<int>(corners_.size()), Qt::OddEvenFill);
}

void QtCanvas::moveTo(int x, int y) {
    penX_ = x;
    penY_ = y;
}

void QtCanvas::lineTo(int x, int y) {
    painter(drawStyle()).drawLine(penX_, penY_, x, y);
    penX_ = x;
    penY_ = y;
}

void QtCanvas::textOut(int x, int y, const std::string& text) {
    // Text is written in the fore colour whatever the draw style.
    painter(DrawSolid).drawText(x, y + fontAscent_, QString::fromStdString(text));
}

int QtCanvas::textWidth(const std::string& text) const {
    return QFontMetrics(font_).horizontalAdvance(QString::fromStdString(text));
}

int QtCanvas::textHeight() const {
    return QFontMetrics(font_).height();
}

void QtCanvas::clear() {
    if (!image_.isDetached()) {
        // A kept picture shares the pixels: a new picture, rather than a copy to cover.
        endPainting();
        image_ = blankImage(image_.width(), image_.height(), backColor());
        return;
    }
    image_.fill(toQColor(backColor()));
}

void QtCanvas::move(int, int, int width, int height) {
    resize(width, height);
}

void QtCanvas::refresh() {
    endPainting();
}

void QtCanvas::keepPicture() {
    endPainting();
    kept_ = image_;
}

bool QtCanvas::restorePicture() {
    if (kept_.isNull() || kept_.size() != image_.size()) {
        return false;
    }
    endPainting();
    image_ = kept_;
    return true;
}

void QtCanvas::overlayPixels(const Bitmap& image, const PixelBox& box) {
    endPainting();
    const int left = std::max(box.left, 0);
    const int right = std::min({box.right, image.width, image_.width()});
    const int bottom = std::min({box.bottom, image.height, image_.height()});
    for (int y = std::max(box.top, 0); y < bottom; ++y) {
        const uint32_t* source = image.pixels.data() + static_cast<size_t>(y) * image.width;
        auto* target = reinterpret_cast<QRgb*>(image_.scanLine(y));
        for (int x = left; x < right; ++x) {
            // Without a branch: covered and uncovered pixels alternate along a row.
            const uint32_t covered = 0u - (source[x] >> 24 != 0 ? 1u : 0u);
            target[x] = (source[x] & covered) | (target[x] & ~covered);
        }
    }
}

void QtCanvas::stretchBlitOr(const Bitmap& image, int dx, int dy, int dw, int dh, int sx, int sy,
                             int sw, int sh) {
    if (dw <= 0 || dh <= 0 || sw <= 0 || sh <= 0) {
        return;
    }
    const int left = std::max(dx, 0);
    const int right = std::min(dx + dw, image_.width());
    const int top = std::max(dy, 0);
    const int bottom = std::min(dy + dh, image_.height());
    if (left >= right || top >= bottom) {
        return;
    }
    endPainting();
    // Nearest neighbour: each destination pixel takes the source pixel under its centre.
    const auto sourceIndex = [](int d, int dSize, int s, int sSize) {
        return s + static_cast<int>((2LL * d + 1) * sSize / (2LL * dSize));
    };
    std::vector<int> columns(right - left);
    for (int x = left; x < right; ++x) {
        columns[x - left] = sourceIndex(x - dx, dw, sx, sw);
    }
    for (int y = top; y < bottom; ++y) {
        const int row = sourceIndex(y - dy, dh, sy, sh);
        if (row < 0 || row >= image.height) {
            continue;
        }
        const uint32_t* source = image.pixels.data() + static_cast<size_t>(row) * image.width;
        auto* target = reinterpret_cast<QRgb*>(image_.scanLine(y));
        for (int x = left; x < right; ++x) {
            const int column = columns[x - left];
            if (column >= 0 && column < image.width) {
                target[x] |= source[column] & 0xFFFFFF;
            }
        }
    }
}

bool QtCanvas::saveBitmap(const std::string& path) const {
    // Encoded in memory first, so that a failure to write leaves no partial file.
    QByteArray encoded;
    QBuffer buffer(&encoded);
    if (!buffer.open(QIODevice::WriteOnly) || !image().save(&buffer, "BMP")) {
        return false;
    }
    PosixFileSystem system;
    const std::span<const uint8_t> bytes(reinterpret_cast<const uint8_t*>(encoded.constData()),
                                         static_cast<size_t>(encoded.size()));
    return !FileOverwriter(system).overwrite(path, bytes);
}
