#include "qt/QtCanvas.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <map>

namespace {

// Colours as the canvas takes them (red + 256 green + 65536 blue) and as the image holds them.
constexpr int32_t Red = 0x0000FF, Green = 0x00FF00, Blue = 0xFF0000, White = 0xFFFFFF;
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

// How many pixels of each colour the rectangle holds.
std::map<QRgb, int> census(const QtCanvas& canvas, int left, int top, int right, int bottom) {
    std::map<QRgb, int> count;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            ++count[at(canvas, x, y)];
        }
    }
    return count;
}

std::vector<CanvasPoint> square(int left, int top, int right, int bottom) {
    return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

} // namespace

TEST(QtCanvas, ResizeKeepsTheOverlap) {
    QtCanvas canvas(40, 30);
    canvas.setBackColor(Blue);
    canvas.clear();
    canvas.setBackColor(Green);
    canvas.resize(60, 20);
    EXPECT_EQ(std::pair(canvas.scaleWidth(), canvas.scaleHeight()), std::pair(60, 20));
    // The old picture where the sizes overlap, the new back colour beyond.
    expectPixels(canvas, BluePixel, {{0, 0}, {39, 19}});
    EXPECT_EQ(at(canvas, 40, 0), GreenPixel);
}

TEST(QtCanvas, EveryChangeOfStyleAndColourTakesEffectAndReadingTheImageEndsThePainting) {
    QtCanvas canvas(100, 70);
    // Lines from the current position, without their end pixel; an invisible pen draws none.
    canvas.setForeColor(Red);
    canvas.moveTo(0, 1);
    canvas.lineTo(10, 1);
    canvas.setForeColor(Green);
    canvas.lineTo(20, 1);
    canvas.lineTo(20, 8);
    canvas.setDrawStyle(DrawInvisible);
    canvas.moveTo(30, 5);
    canvas.lineTo(60, 5);
    // A hatch paints only its lines, in the fill colour; solid without a pen, solid with the
    // pen's outline, and outlined only.
    canvas.setFillColor(Red);
    canvas.setFillStyle(FillDiagonalCross);
    canvas.polygon(square(68, 8, 92, 32));
    canvas.setFillStyle(FillSolid);
    canvas.polygon(square(2, 20, 12, 30));
    canvas.setDrawStyle(DrawSolid);
    canvas.setFillColor(Blue);
    canvas.polygon(square(26, 20, 36, 30));
    canvas.setFillStyle(FillTransparent);
    canvas.polygon(square(40, 20, 50, 30));
    // Text is written in the fore colour alone whatever the draw style, below and right of
    // its point and within its size, so that it can be right-aligned.
    canvas.setDrawStyle(DrawInvisible);
    canvas.setForeColor(White);
    const std::string text = "Z Dist: -1.5";
    canvas.textOut(10, 50, text);
    EXPECT_FALSE(canvas.image().paintingActive());

    expectPixels(canvas, RedPixel, {{5, 1}, {3, 21}, {7, 25}});
    expectPixels(canvas, GreenPixel, {{15, 1}, {20, 4}, {26, 25}, {40, 25}, {45, 20}});
    expectPixels(canvas, BluePixel, {{31, 25}});
    expectPixels(canvas, Black, {{20, 8}, {15, 2}, {45, 5}, {45, 25}, {55, 25}});
    const auto hatch = census(canvas, 70, 10, 90, 30);
    EXPECT_EQ(hatch.size(), 2u);
    EXPECT_GT(hatch.at(RedPixel), 40);
    EXPECT_GT(hatch.at(Black), 200);
    EXPECT_EQ(census(canvas, 41, 21, 50, 30).at(Black), 81);
    const int right = 10 + canvas.textWidth(text), bottom = 50 + canvas.textHeight();
    EXPECT_EQ(census(canvas, 10, 50, right, bottom).size(), 2u);
    EXPECT_GT(census(canvas, right - 3, 50, right, bottom)[White], 0);
    EXPECT_EQ(census(canvas, 0, 40, 100, 70)[White], census(canvas, 10, 50, right, bottom)[White]);
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

TEST(QtCanvas, SavesABitmapWholeOrNotAtAll) {
    QTemporaryDir dir;
    QtCanvas canvas(16, 8);
    canvas.setBackColor(Red);
    canvas.clear();
    const std::string folder = dir.path().toStdString();
    ASSERT_TRUE(canvas.saveBitmap(folder + "/saved.bmp"));
    const QImage loaded(QString::fromStdString(folder + "/saved.bmp"));
    ASSERT_EQ(loaded.size(), QSize(16, 8));
    EXPECT_EQ(loaded.pixel(3, 3) & 0xFFFFFF, RedPixel);
    EXPECT_FALSE(canvas.saveBitmap(folder + "/missing/view.bmp"));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries, QDir::Name),
              (QStringList{"saved.bmp"}));
}
