#include "app/frmSplash.h"

#include "support/RecordingCanvas.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

using Kind = RecordingCanvas::Kind;

const Bitmap logo{400, 400, std::vector<uint32_t>(400 * 400, 0)};

// The cube with a corner projected onto a painted polygon's first point.
int cubeOf(const frmSplash& splash, const RecordingCanvas::Call& polygon) {
    for (int i = 0; i < 8; ++i) {
        for (int k = 1; k <= 8; ++k) {
            const Point4 t = splash.cubes()[i]->getPointRecord(k).trans;
            if (std::nearbyint(t.x) == polygon.points[0].x &&
                std::nearbyint(t.y) == polygon.points[0].y) {
                return i;
            }
        }
    }
    return -1;
}

} // namespace

TEST(frmSplash, FramePaintsLitCubesFarthestFirstThenLogoAndText) {
    RecordingCanvas canvas(400, 300);
    frmSplash splash;
    splash.Form_Load(canvas, logo, 0);
    splash.tick(5);
    const auto& calls = canvas.calls();
    ASSERT_EQ(calls.size(), 30u);
    EXPECT_EQ(calls[0].kind, Kind::Clear);
    // Seen from outside every cube shows three faces; the light, up and to the left, reaches
    // the top and front faces but not the right ones (its fitted range keeps them lit).
    int lit = 0;
    for (size_t i = 1; i <= 24; ++i) {
        ASSERT_EQ(calls[i].kind, Kind::Polygon) << i;
        const int red = calls[i].fillColor & 0xFF, green = (calls[i].fillColor >> 8) & 0xFF,
                  blue = calls[i].fillColor >> 16;
        EXPECT_TRUE(green >= red && green >= blue) << i;
        lit += green > red && green > blue ? 1 : 0;
    }
    EXPECT_EQ(lit, 16);
    // The eye is on the side of the cube at (+,+,+), opposite the one at (-,-,-).
    EXPECT_EQ(cubeOf(splash, calls[1]), 0);
    EXPECT_EQ(cubeOf(splash, calls[24]), 7);

    EXPECT_EQ(calls[25].kind, Kind::StretchBlit);
    EXPECT_EQ(calls[25].points[1].x, 400); // the logo over the whole canvas
    EXPECT_EQ(calls[26].text, "Tavrin Korvan");
    EXPECT_EQ(calls[27].text, "Version 2.0 Beta Revision B");
    EXPECT_EQ(calls[29].kind, Kind::Refresh);
}

TEST(frmSplash, CameraStepsAfterMoreThanTenMillisecondsUntilTimerOrKeyClosesAndResizeFills) {
    RecordingCanvas canvas;
    frmSplash splash;
    const float step = std::numbers::pi_v<float> / 60;
    splash.Form_Load(canvas, logo, 1000);
    const float start = splash.theta();
    const std::pair<uint32_t, int> ticks[] = {{1010, 0}, {1011, 1}, {1021, 1}, {1022, 2}};
    for (const auto& [now, steps] : ticks) {
        splash.tick(now);
        EXPECT_FLOAT_EQ(splash.theta(), start + steps * step) << now;
    }
    EXPECT_EQ(canvas.polygons().size(), 4 * 24u); // a frame every tick, stepped or not

    // The millisecond count wraps around after 49 days.
    frmSplash wrapped;
    wrapped.Form_Load(canvas, logo, 0xFFFFFFF0u);
    wrapped.tick(5);
    EXPECT_FLOAT_EQ(wrapped.theta(), start + step);

    for (auto close : {&frmSplash::Timer1_Timer, &frmSplash::Form_KeyDown}) {
        frmSplash closed;
        closed.Form_Load(canvas, logo, 0);
        (closed.*close)();
        canvas.forget();
        closed.tick(100);
        EXPECT_TRUE(canvas.calls().empty());
    }

    // Resizing fills the window but keeps at least 120 pixels a side.
    for (const auto& [width, height] : {std::pair{50, 120}, std::pair{640, -5}}) {
        const auto size = splash.Form_Resize(width, height);
        EXPECT_EQ(size.width, std::max(width, 120));
        EXPECT_EQ(size.height, std::max(height, 120));
        EXPECT_EQ(canvas.scaleWidth(), size.width);
        EXPECT_EQ(canvas.scaleHeight(), size.height);
    }
}
