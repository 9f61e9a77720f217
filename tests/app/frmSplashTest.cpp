#include "app/frmSplash.h"

#include "support/RecordingCanvas.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

using Kind = RecordingCanvas::Kind;

Bitmap logo() {
    return Bitmap{400, 400, std::vector<uint32_t>(400 * 400, 0)};
}

int channel(int32_t color, int shift) {
    return (color >> shift) & 0xFF;
}

// The cube a painted polygon belongs to: the one with a visible face whose first corner
// lands on the polygon's first point.
int cubeOf(const frmSplash& splash, const RecordingCanvas::Call& polygon) {
    for (size_t i = 0; i < splash.cubes().size(); ++i) {
        for (const auto& face : splash.cubes()[i]->faces) {
            float x;
            float y;
            float z;
            face->GetTransformedPoint(1, x, y, z);
            if (!face->IsCulled && std::nearbyint(x) == polygon.points[0].x &&
                std::nearbyint(y) == polygon.points[0].y) {
                return static_cast<int>(i);
            }
        }
    }
    return -1;
}

} // namespace

TEST(frmSplash, CubesAreWoundOutwards) {
    RecordingCanvas canvas;
    frmSplash splash;
    splash.Form_Load(canvas, logo(), 0);
    ASSERT_EQ(splash.cubes().size(), 8u);
    for (const auto& cube : splash.cubes()) {
        ASSERT_EQ(cube->faces.size(), 6u);
        Point4 centre{};
        for (int i = 1; i <= 8; ++i) {
            centre.x += cube->getPointRecord(i).coord.x / 8;
            centre.y += cube->getPointRecord(i).coord.y / 8;
            centre.z += cube->getPointRecord(i).coord.z / 8;
        }
        for (const auto& face : cube->faces) {
            const Point4& corner = cube->getPointRecord(face->getIndices()[0]).coord;
            float nx;
            float ny;
            float nz;
            face->NormalVector(nx, ny, nz);
            EXPECT_GT(nx * (corner.x - centre.x) + ny * (corner.y - centre.y) +
                          nz * (corner.z - centre.z),
                      0);
        }
    }
}

TEST(frmSplash, FramePaintsLitCubesFarthestFirstThenLogoAndText) {
    RecordingCanvas canvas(400, 300);
    frmSplash splash;
    splash.Form_Load(canvas, logo(), 0);
    splash.tick(5);

    const auto& calls = canvas.calls();
    ASSERT_GE(calls.size(), 6u);
    EXPECT_EQ(calls.front().kind, Kind::Clear);
    const auto polygons = canvas.polygons();
    // Seen from outside every cube shows three faces.
    ASSERT_EQ(polygons.size(), 24u);
    int lit = 0;
    for (size_t i = 1; i <= polygons.size(); ++i) {
        const auto& p = calls[i];
        ASSERT_EQ(p.kind, Kind::Polygon);
        EXPECT_EQ(p.fillStyle, FillSolid);
        const int red = channel(p.fillColor, 0);
        const int green = channel(p.fillColor, 8);
        const int blue = channel(p.fillColor, 16);
        EXPECT_GE(green, red);
        EXPECT_GE(green, blue);
        lit += green > red && green > blue ? 1 : 0;
    }
    // The light, up and to the left, reaches the top and front faces but not the right ones:
    // the fitted range keeps its attenuation above zero.
    EXPECT_EQ(lit, 16);
    // The eye is on the side of the cube at (+,+,+) and opposite the one at (-,-,-).
    EXPECT_EQ(cubeOf(splash, polygons.front()), 0);
    EXPECT_EQ(cubeOf(splash, polygons.back()), 7);

    const auto& blit = calls[25];
    EXPECT_EQ(blit.kind, Kind::StretchBlit);
    EXPECT_EQ(blit.points[0].x, 0);
    EXPECT_EQ(blit.points[0].y, 0);
    EXPECT_EQ(blit.points[1].x, 400);
    EXPECT_EQ(blit.points[1].y, 300);
    const char* lines[] = {"Tavrin Korvan", "Version 2.0 Beta Revision B"};
    for (int i = 0; i < 3; ++i) {
        const auto& text = calls[26 + i];
        ASSERT_EQ(text.kind, Kind::Text);
        EXPECT_EQ(text.foreColor, 16776960);
        EXPECT_EQ(text.points[0].x, 0);
        EXPECT_EQ(text.points[0].y, 12 * i);
        if (i < 2) {
            EXPECT_EQ(text.text, lines[i]);
        }
    }
    EXPECT_FALSE(calls[28].text.empty());
    ASSERT_EQ(calls.size(), 30u);
    EXPECT_EQ(calls.back().kind, Kind::Refresh);
}

TEST(frmSplash, CameraStepsOnlyAfterMoreThanTenMilliseconds) {
    RecordingCanvas canvas;
    frmSplash splash;
    const float step = std::numbers::pi_v<float> / 60;
    splash.Form_Load(canvas, logo(), 1000);
    const float start = splash.theta();
    EXPECT_NEAR(start, 2 * std::numbers::pi / 10, 1e-6);

    splash.tick(1010);
    EXPECT_EQ(splash.theta(), start);
    const auto before = canvas.polygons();
    splash.tick(1011);
    EXPECT_FLOAT_EQ(splash.theta(), start + step);
    EXPECT_NE(canvas.polygons()[24].points[0].x, before[0].points[0].x); // the picture turned
    splash.tick(1021);
    EXPECT_FLOAT_EQ(splash.theta(), start + step);
    splash.tick(1022);
    EXPECT_FLOAT_EQ(splash.theta(), start + 2 * step);
    // A frame every tick, stepped or not.
    int refreshes = 0;
    for (const auto& call : canvas.calls()) {
        refreshes += call.kind == Kind::Refresh ? 1 : 0;
    }
    EXPECT_EQ(refreshes, 4);

    // The millisecond count wraps around after 49 days.
    frmSplash wrapped;
    wrapped.Form_Load(canvas, logo(), 0xFFFFFFF0u);
    wrapped.tick(5);
    EXPECT_FLOAT_EQ(wrapped.theta(), start + step);
}

TEST(frmSplash, TimerOrKeyClosesAndStopsTheAnimation) {
    RecordingCanvas canvas;
    frmSplash byTimer;
    byTimer.Form_Load(canvas, logo(), 0);
    EXPECT_FALSE(byTimer.isClosed());
    byTimer.Timer1_Timer();
    EXPECT_TRUE(byTimer.isClosed());
    byTimer.tick(100);
    EXPECT_TRUE(canvas.calls().empty());

    frmSplash byKey;
    byKey.Form_Load(canvas, logo(), 0);
    byKey.Form_KeyDown();
    EXPECT_TRUE(byKey.isClosed());
    EXPECT_EQ(frmSplash::Timer1Interval, 6000);
}

TEST(frmSplash, ResizeFillsTheWindowButKeepsAtLeast120) {
    RecordingCanvas canvas;
    frmSplash splash;
    splash.Form_Load(canvas, logo(), 0);
    const auto small = splash.Form_Resize(50, 300);
    EXPECT_EQ(small.width, 120);
    EXPECT_EQ(small.height, 300);
    EXPECT_EQ(canvas.scaleWidth(), 120);
    EXPECT_EQ(canvas.scaleHeight(), 300);
    EXPECT_EQ(canvas.left(), 0);
    EXPECT_EQ(canvas.top(), 0);
    const auto large = splash.Form_Resize(640, -5);
    EXPECT_EQ(large.width, 640);
    EXPECT_EQ(large.height, 120);
}
