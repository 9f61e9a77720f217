#include "interaction/ClickHandleProfile.h"

#include "geometry/NumberText.h"
#include "geometry/Rounding.h"
#include "modelling/frmOrientation.h"
#include "support/TestSolids.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

namespace {

constexpr int32_t cyan = 16776960;
constexpr int top = 0; // the top view: depth 0 is the plane y = 0

// A window of four viewports drawing a profile on a selected workplane through the origin.
struct Drawing : TestWindow {
    Drawing() {
        showFourViewports();
        const auto workPlane = makeWorkPlane(2, 0, 0);
        form.getDocument().workPlanes.push_back(workPlane);
        form.getSelection().setSelectedWorkplanes({workPlane});
        choose({"&Create", "&Profile"});
    }
    void click(int index, const Point4& at) { form.picOrtho_MouseDown(index, 1, 0, at.x, at.y); }
    void move(int index, const Point4& at) { form.picOrtho_MouseMove(index, 0, 0, at.x, at.y); }

    const Profile& profile() { return *form.getDocument().currentProfile; }
};

// The overlay's calls of one kind: those in cyan.
std::vector<RecordingCanvas::Call> callsOf(const RecordingCanvas& canvas,
                                           RecordingCanvas::Kind kind) {
    std::vector<RecordingCanvas::Call> found;
    for (const auto& call : canvas.calls()) {
        if (call.kind == kind && call.foreColor == cyan) {
            found.push_back(call);
        }
    }
    return found;
}

// The number after the caption of a read-out line.
float valueOf(const RecordingCanvas::Call& text, const std::string& caption) {
    EXPECT_EQ(text.text.substr(0, caption.size()), caption);
    return NumberText::parseSingle(text.text.substr(caption.size())).value_or(-12345.0f);
}

} // namespace

// Pointer read-out, then after a click the distance from it and the rubber band, in views
// whose depth 0 is the plane y = 0 (top) and z = 0 (front). The click is refused for want
// of a workplane, and starts the rubber band all the same.
TEST(ClickHandleProfile, ReadOutShowsThePointerAndAfterAClickItsDistanceAndTheRubberBand) {
    constexpr int front = 2;
    const std::string axes[] = {"X", "Y", "Z"};
    const std::tuple<int, Point4, Point4> rows[] = {
        {top, {0.5f, 0, -0.25f, 1}, {1, 0, 0.5f, 1}},
        {front, {0.5f, 0.75f, 0, 1}, {-1, -0.25f, 0, 1}}};
    for (const auto& [view, from, to] : rows) {
        SCOPED_TRACE(view == top ? "top view" : "front view");
        Drawing d;
        RecordingCanvas& canvas = d.canvases[static_cast<size_t>(view)];
        const Point4 fromPixel = d.pixel(view, from.x, from.y, from.z);
        const Point4 toPixel = d.pixel(view, to.x, to.y, to.z);
        canvas.forget();
        d.move(view, fromPixel);
        auto texts = callsOf(canvas, RecordingCanvas::Kind::Text);
        ASSERT_EQ(texts.size(), 3u);
        EXPECT_TRUE(callsOf(canvas, RecordingCanvas::Kind::LineTo).empty());
        for (int i = 0; i < 3; ++i) {
            EXPECT_NEAR(valueOf(texts[i], axes[i] + " : "), from(i + 1), 0.01f);
        }
        // On the last lines, in 6 x 13 pixel cells on a 400 x 300 canvas, right-aligned.
        EXPECT_EQ(texts[2].points[0].y, 300 - 13);

        d.form.getSelection().setSelectedWorkplanes({});
        d.click(view, fromPixel);
        ASSERT_EQ(d.prompts.messages().size(), 1u);
        EXPECT_EQ(d.prompts.messages()[0].title, "Cannot add profile point");
        canvas.forget();
        d.canvases[1].forget();
        d.move(view, toPixel);
        EXPECT_EQ(callsOf(d.canvases[1], RecordingCanvas::Kind::Text).size(), 6u); // every view
        texts = callsOf(canvas, RecordingCanvas::Kind::Text);
        ASSERT_EQ(texts.size(), 6u);
        for (int i = 0; i < 3; ++i) {
            EXPECT_NEAR(valueOf(texts[i], axes[i] + " Dist: "), to(i + 1) - from(i + 1), 0.01f);
            EXPECT_NEAR(valueOf(texts[i + 3], axes[i] + " : "), to(i + 1), 0.01f);
        }
        EXPECT_EQ(texts[0].points[0].y, 300 - 6 * 13);
        EXPECT_EQ(texts[3].points[0].x, 400 - 6 * static_cast<int>(texts[3].text.size()));

        const auto band = callsOf(canvas, RecordingCanvas::Kind::LineTo).back();
        const auto bandStart = callsOf(canvas, RecordingCanvas::Kind::MoveTo).back();
        EXPECT_EQ(std::pair(band.points[0].x, band.points[0].y),
                  std::pair(Rounding::toInt32(toPixel.x), Rounding::toInt32(toPixel.y)));
        EXPECT_EQ(std::pair(bandStart.points[0].x, bandStart.points[0].y),
                  std::pair(Rounding::toInt32(fromPixel.x), Rounding::toInt32(fromPixel.y)));
        EXPECT_NE(canvas.foreColor(), cyan); // the canvas's own colour again
    }
}

TEST(ClickHandleProfile, ClicksBecomePointsWhereTheyAreSeenAndAMiddleClickCloses) {
    Drawing d;
    const Point4 corners[] = {d.pixel(top, -1, 0, 0.5f), d.pixel(top, 1, 0, 0.5f),
                              d.pixel(top, 1, 0, -0.5f)};
    for (const Point4& corner : corners) {
        d.click(top, corner);
    }
    ASSERT_EQ(d.profile().getPointCount(), 3);
    const Point4 second = d.profile().getPointRecord(2).coord;
    EXPECT_NEAR(second.x, 1.0f, 0.01f);
    EXPECT_NEAR(second.z, 0.5f, 0.01f);

    // The two segments' screen directions sum to more than 0: a clockwise guess.
    std::string guess;
    d.dialogs.queueDialog({[&guess](ModalDialog& dialog) {
                               guess =
                                   static_cast<frmOrientation&>(dialog).lblGuessOrientation.Caption;
                           },
                           ScriptedModalHost::press("mnuConfirm")});
    d.form.picOrtho_MouseDown(top, 4, 0, 200, 150);
    EXPECT_EQ(guess, "Clockwise");
    EXPECT_EQ(d.profile().getPointCount(), 4);
}
