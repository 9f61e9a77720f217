#include "qt/QtCanvas.h"
#include "qt/CanvasWidget.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// Colours as the canvas takes them (red + 256 green + 65536 blue) and as the image holds them.
constexpr int32_t Red = 0x0000FF;
constexpr int32_t Green = 0x00FF00;
constexpr int32_t Blue = 0xFF0000;
constexpr QRgb RedPixel = 0xFF0000;
constexpr QRgb GreenPixel = 0x00FF00;
constexpr QRgb BluePixel = 0x0000FF;
constexpr QRgb BlackPixel = 0x000000;

QRgb at(const QtCanvas& canvas, int x, int y) {
    return canvas.image().pixel(x, y) & 0xFFFFFF;
}

std::vector<CanvasPoint> square(int left, int top, int right, int bottom) {
    return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

} // namespace

TEST(QtCanvas, ClearAndResizeUseTheBackColour) {
    QtCanvas canvas(40, 30);
    EXPECT_EQ(canvas.scaleWidth(), 40);
    EXPECT_EQ(canvas.scaleHeight(), 30);
    canvas.setBackColor(Blue);
    canvas.clear();
    EXPECT_EQ(at(canvas, 0, 0), BluePixel);
    EXPECT_EQ(at(canvas, 39, 29), BluePixel);

    canvas.setBackColor(Green);
    canvas.resize(60, 20);
    EXPECT_EQ(canvas.scaleWidth(), 60);
    EXPECT_EQ(canvas.scaleHeight(), 20);
    EXPECT_EQ(at(canvas, 39, 19), BluePixel); // the old picture where the sizes overlap
    EXPECT_EQ(at(canvas, 40, 0), GreenPixel);
}

TEST(QtCanvas, PolygonFillsWithTheBrushAndOutlinesWithThePen) {
    QtCanvas canvas(80, 40);
    canvas.setFillStyle(FillSolid);
    canvas.setDrawStyle(DrawInvisible);
    canvas.setFillColor(Red);
    canvas.polygon(square(10, 10, 30, 30));
    EXPECT_EQ(at(canvas, 11, 11), RedPixel);
    EXPECT_EQ(at(canvas, 20, 20), RedPixel);
    EXPECT_EQ(at(canvas, 5, 20), BlackPixel);
    EXPECT_EQ(at(canvas, 35, 20), BlackPixel);

    canvas.setFillStyle(FillTransparent);
    canvas.setDrawStyle(DrawSolid);
    canvas.setForeColor(Green);
    canvas.polygon(square(40, 10, 60, 30));
    EXPECT_EQ(at(canvas, 40, 20), GreenPixel);
    EXPECT_EQ(at(canvas, 50, 10), GreenPixel);
    EXPECT_EQ(at(canvas, 60, 20), GreenPixel);
    EXPECT_EQ(at(canvas, 50, 20), BlackPixel);
    EXPECT_EQ(at(canvas, 65, 20), BlackPixel);
}

TEST(QtCanvas, HatchPaintsOnlyItsLines) {
    QtCanvas canvas(40, 40);
    canvas.setBackColor(Blue);
    canvas.clear();
    canvas.setFillStyle(FillDiagonalCross);
    canvas.setDrawStyle(DrawInvisible);
    canvas.setFillColor(Red);
    canvas.polygon(square(8, 8, 32, 32));
    int hatched = 0;
    int untouched = 0;
    for (int y = 10; y < 30; ++y) {
        for (int x = 10; x < 30; ++x) {
            const QRgb pixel = at(canvas, x, y);
            hatched += pixel == RedPixel;
            untouched += pixel == BluePixel;
        }
    }
    EXPECT_GT(hatched, 40);
    EXPECT_GT(untouched, 200);
    EXPECT_EQ(hatched + untouched, 400);
    EXPECT_EQ(at(canvas, 2, 2), BluePixel);
    EXPECT_EQ(at(canvas, 36, 36), BluePixel);
}

TEST(QtCanvas, LineToDrawsFromTheCurrentPositionAndLeavesTheEndPixel) {
    QtCanvas canvas(40, 40);
    canvas.setForeColor(Green);
    canvas.moveTo(5, 5);
    canvas.lineTo(25, 5);
    canvas.lineTo(25, 25);
    EXPECT_EQ(at(canvas, 5, 5), GreenPixel);
    EXPECT_EQ(at(canvas, 15, 5), GreenPixel);
    EXPECT_EQ(at(canvas, 25, 15), GreenPixel);
    EXPECT_EQ(at(canvas, 25, 25), BlackPixel);
    EXPECT_EQ(at(canvas, 15, 6), BlackPixel);

    canvas.setDrawStyle(DrawInvisible);
    canvas.moveTo(5, 30);
    canvas.lineTo(35, 30);
    EXPECT_EQ(at(canvas, 20, 30), BlackPixel);
}

TEST(QtCanvas, TextOutWritesBelowAndRightOfItsPoint) {
    QtCanvas canvas(60, 40);
    canvas.setForeColor(0xFFFFFF);
    canvas.textOut(10, 10, "XYZ");
    int lit = 0;
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 60; ++x) {
            const QRgb pixel = at(canvas, x, y);
            EXPECT_TRUE(pixel == BlackPixel || pixel == 0xFFFFFF) << x << "," << y;
            if (pixel != BlackPixel) {
                ++lit;
                EXPECT_GE(x, 10);
                EXPECT_GE(y, 10);
            }
        }
    }
    EXPECT_GT(lit, 10);
}

TEST(QtCanvas, StretchBlitOrScalesAndCombines) {
    QtCanvas canvas(40, 40);
    canvas.setBackColor(Blue);
    canvas.clear();
    const Bitmap logo{2, 2, {0x00FF00, 0x000000, 0xFF0000, 0x808000}};
    canvas.stretchBlitOr(logo, 10, 10, 20, 20, 0, 0, 2, 2);
    EXPECT_EQ(at(canvas, 10, 10), 0x00FFFFu);
    EXPECT_EQ(at(canvas, 19, 19), 0x00FFFFu);
    EXPECT_EQ(at(canvas, 20, 10), BluePixel);
    EXPECT_EQ(at(canvas, 10, 20), 0xFF00FFu);
    EXPECT_EQ(at(canvas, 29, 29), 0x8080FFu);
    EXPECT_EQ(at(canvas, 9, 9), BluePixel);
    EXPECT_EQ(at(canvas, 30, 30), BluePixel);

    // One source pixel over a destination larger than the canvas.
    canvas.clear();
    canvas.stretchBlitOr(logo, -10, -10, 100, 100, 1, 1, 1, 1);
    EXPECT_EQ(at(canvas, 0, 0), 0x8080FFu);
    canvas.stretchBlitOr(logo, -10, -10, 100, 100, 0, 1, 1, 1); // over the first
    EXPECT_EQ(at(canvas, 39, 39), 0xFF80FFu);
}

TEST(QtCanvas, SaveImageWritesBmpAndPngOnly) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
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

TEST(CanvasWidget, KeepsItsCanvasTheSizeOfTheWidget) {
    CanvasWidget widget;
    widget.resize(120, 90);
    widget.show();
    EXPECT_EQ(widget.canvas().scaleWidth(), 120);
    EXPECT_EQ(widget.canvas().scaleHeight(), 90);
    widget.resize(70, 50);
    EXPECT_EQ(widget.canvas().scaleWidth(), 70);
    EXPECT_EQ(widget.canvas().scaleHeight(), 50);
}
