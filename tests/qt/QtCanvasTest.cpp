#include "qt/QtCanvas.h"
#include "qt/CanvasWidget.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace {

// Colours as the canvas takes them (red + 256 green + 65536 blue) and as the image holds them.
constexpr int32_t Red = 0x0000FF, Green = 0x00FF00, Blue = 0xFF0000;
constexpr QRgb RedPixel = 0xFF0000, GreenPixel = 0x00FF00, BluePixel = 0x0000FF, Black = 0;

QRgb at(const QtCanvas& canvas, int x, int y) {
    return canvas.image().pixel(x, y) & 0xFFFFFF;
}

void expectPixels(const QtCanvas& canvas, QRgb pixel,
                  std::initializer_list<std::pair<int, int>> points) {
    for (const auto& [x, y] : points) {
        EXPECT_EQ(at(canvas, x, y), pixel) << x << "," << y;
    }
}

std::vector<CanvasPoint> square(int left, int top, int right, int bottom) {
    return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

} // namespace

TEST(QtCanvas, ResizeKeepsTheOverlapAndAWidgetsCanvasTakesTheWidgetsSize) {
    QtCanvas canvas(40, 30);
    canvas.setBackColor(Blue);
    canvas.clear();
    canvas.setBackColor(Green);
    canvas.resize(60, 20);
    EXPECT_EQ(std::pair(canvas.scaleWidth(), canvas.scaleHeight()), std::pair(60, 20));
    // The old picture where the sizes overlap, the new back colour beyond.
    expectPixels(canvas, BluePixel, {{0, 0}, {39, 19}});
    EXPECT_EQ(at(canvas, 40, 0), GreenPixel);

    CanvasWidget widget;
    widget.resize(120, 90);
    widget.show();
    EXPECT_EQ(widget.canvas().image().size(), QSize(120, 90));
    widget.resize(70, 50);
    EXPECT_EQ(widget.canvas().image().size(), QSize(70, 50));
}

TEST(QtCanvas, PolygonFillsSolidHatchedOrNotAndOutlinesWithThePen) {
    QtCanvas canvas(100, 40);
    canvas.setBackColor(Blue);
    canvas.clear();
    canvas.setFillColor(Red);
    canvas.setDrawStyle(DrawInvisible);
    canvas.setFillStyle(FillSolid);
    canvas.polygon(square(10, 10, 30, 30));
    canvas.setFillStyle(FillDiagonalCross);
    canvas.polygon(square(68, 8, 92, 32));
    canvas.setFillStyle(FillTransparent);
    canvas.setDrawStyle(DrawSolid);
    canvas.setForeColor(Green);
    canvas.polygon(square(40, 10, 60, 30));
    expectPixels(canvas, RedPixel, {{11, 11}, {20, 20}});
    expectPixels(canvas, GreenPixel, {{40, 20}, {50, 10}, {60, 20}});
    expectPixels(canvas, BluePixel, {{5, 20}, {35, 20}, {50, 20}, {65, 20}, {95, 20}});
    // The hatch paints only its lines, in the fill colour.
    std::map<QRgb, int> hatch;
    for (int y = 10; y < 30; ++y) {
        for (int x = 70; x < 90; ++x) {
            ++hatch[at(canvas, x, y)];
        }
    }
    EXPECT_EQ(hatch.size(), 2u);
    EXPECT_GT(hatch[RedPixel], 40);
    EXPECT_GT(hatch[BluePixel], 200);
}

TEST(QtCanvas, LineToDrawsFromTheCurrentPositionAndLeavesTheEndPixel) {
    QtCanvas canvas(40, 40);
    canvas.setForeColor(Green);
    canvas.moveTo(5, 5);
    canvas.lineTo(25, 5);
    canvas.lineTo(25, 25);
    canvas.setDrawStyle(DrawInvisible);
    canvas.moveTo(5, 30);
    canvas.lineTo(35, 30);
    expectPixels(canvas, GreenPixel, {{5, 5}, {15, 5}, {25, 15}});
    expectPixels(canvas, Black, {{25, 25}, {15, 6}, {20, 30}});
}

TEST(QtCanvas, TextOutWritesBelowAndRightOfItsPoint) {
    QtCanvas canvas(60, 40);
    canvas.setForeColor(0xFFFFFF);
    canvas.textOut(10, 10, "XYZ");
    int lit = 0;
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 60; ++x) {
            const QRgb pixel = at(canvas, x, y);
            if (pixel == Black) {
                continue;
            }
            ++lit;
            EXPECT_EQ(pixel, 0xFFFFFFu) << x << "," << y;
            EXPECT_GE(x, 10) << y;
            EXPECT_GE(y, 10) << x;
        }
    }
    EXPECT_GT(lit, 10);
}

TEST(QtCanvas, TextSizeBoundsTheWrittenTextSoThatItCanBeRightAligned) {
    QtCanvas canvas(120, 40);
    canvas.setForeColor(0xFFFFFF);
    const std::string text = "Z Dist: -1.5";
    canvas.textOut(0, 0, text);
    int right = -1;
    int bottom = -1;
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 120; ++x) {
            if (at(canvas, x, y) != Black) {
                right = std::max(right, x);
                bottom = std::max(bottom, y);
            }
        }
    }
    EXPECT_LT(right, canvas.textWidth(text));
    EXPECT_GE(right, canvas.textWidth(text) - 3);
    EXPECT_LT(bottom, canvas.textHeight());
}

TEST(QtCanvas, StretchBlitOrScalesAndCombines) {
    QtCanvas canvas(40, 40);
    canvas.setBackColor(Blue);
    canvas.clear();
    const Bitmap logo{2, 2, {0x00FF00, 0x000000, 0xFF0000, 0x808000}};
    canvas.stretchBlitOr(logo, 10, 10, 20, 20, 0, 0, 2, 2);
    expectPixels(canvas, 0x00FFFF, {{10, 10}, {19, 19}});
    expectPixels(canvas, BluePixel, {{20, 10}, {9, 9}, {30, 30}});
    expectPixels(canvas, 0xFF00FF, {{10, 20}});
    expectPixels(canvas, 0x8080FF, {{29, 29}});

    // One source pixel over a destination larger than the canvas, then another over it.
    canvas.clear();
    canvas.stretchBlitOr(logo, -10, -10, 100, 100, 1, 1, 1, 1);
    EXPECT_EQ(at(canvas, 0, 0), 0x8080FFu);
    canvas.stretchBlitOr(logo, -10, -10, 100, 100, 0, 1, 1, 1);
    EXPECT_EQ(at(canvas, 39, 39), 0xFF80FFu);
}

TEST(QtCanvas, SaveImageWritesBmpAndPngOnly) {
    QTemporaryDir dir;
    QtCanvas canvas(16, 8);
    canvas.setBackColor(Red);
    canvas.clear();
    for (const char* name : {"/view.bmp", "/view.PNG"}) {
        const std::string path = dir.path().toStdString() + name;
        ASSERT_TRUE(canvas.saveImage(path)) << name;
        const QImage loaded(QString::fromStdString(path));
        ASSERT_EQ(loaded.size(), QSize(16, 8)) << name;
        EXPECT_EQ(loaded.pixel(3, 3) & 0xFFFFFF, RedPixel) << name;
    }
    const std::string text = dir.path().toStdString() + "/view.txt";
    EXPECT_FALSE(canvas.saveImage(text));
    EXPECT_FALSE(QFile::exists(QString::fromStdString(text)));
}

TEST(QtCanvas, SaveBitmapWritesAWholeBmpFileOrNone) {
    QTemporaryDir dir;
    QtCanvas canvas(16, 8);
    canvas.setBackColor(Red);
    canvas.clear();
    const std::string path = dir.path().toStdString() + "/view.bmp";
    ASSERT_TRUE(canvas.saveBitmap(path));
    QFile file(QString::fromStdString(path));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    ASSERT_GT(bytes.size(), 54);
    const auto field = [&](int offset, int size) {
        uint32_t value = 0;
        for (int i = size - 1; i >= 0; --i) {
            value = value * 256 + static_cast<uint8_t>(bytes[offset + i]);
        }
        return value;
    };
    // The header every viewer reads: signature, file size, a 40-byte info header.
    EXPECT_EQ(bytes.left(2), QByteArray("BM"));
    EXPECT_EQ(field(2, 4), static_cast<uint32_t>(bytes.size()));
    EXPECT_EQ(field(14, 4), 40u);
    const QImage loaded(QString::fromStdString(path), "BMP");
    ASSERT_EQ(loaded.size(), QSize(16, 8));
    EXPECT_EQ(loaded.pixel(3, 3) & 0xFFFFFF, RedPixel);

    const std::string unreachable = dir.path().toStdString() + "/missing/view.bmp";
    EXPECT_FALSE(canvas.saveBitmap(unreachable));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
              QStringList{"view.bmp"});
}

TEST(QtCanvas, OnePainterFollowsEveryChangeOfStyleAndColourAndEndsWhenTheImageIsRead) {
    QtCanvas canvas(40, 40);
    canvas.setForeColor(Red);
    canvas.moveTo(0, 1);
    canvas.lineTo(10, 1);
    canvas.setForeColor(Green);
    canvas.lineTo(20, 1);
    // A hatch, then in the same colour a polygon that is only outlined, then a solid one.
    canvas.setFillColor(Red);
    canvas.setFillStyle(FillDiagonalCross);
    canvas.polygon(square(2, 10, 12, 20));
    canvas.setFillStyle(FillTransparent);
    canvas.polygon(square(14, 10, 24, 20));
    canvas.setFillStyle(FillSolid);
    canvas.setFillColor(Blue);
    canvas.polygon(square(26, 10, 36, 20));
    // Text is written whatever the draw style.
    canvas.setDrawStyle(DrawInvisible);
    canvas.setForeColor(0xFFFFFF);
    canvas.textOut(0, 24, "X");
    EXPECT_FALSE(canvas.image().paintingActive());

    EXPECT_EQ(at(canvas, 5, 1), RedPixel);
    EXPECT_EQ(at(canvas, 15, 1), GreenPixel);
    EXPECT_EQ(at(canvas, 31, 15), BluePixel);
    EXPECT_EQ(at(canvas, 26, 15), GreenPixel); // a solid polygon with a pen keeps its outline
    int unfilled = 0;
    int written = 0;
    for (int y = 11; y < 20; ++y) {
        for (int x = 15; x < 24; ++x) {
            unfilled += at(canvas, x, y) == Black;
        }
    }
    for (int y = 24; y < 40; ++y) {
        for (int x = 0; x < 40; ++x) {
            written += at(canvas, x, y) == 0xFFFFFFu;
        }
    }
    EXPECT_EQ(unfilled, 81);
    EXPECT_GT(written, 3);
}
