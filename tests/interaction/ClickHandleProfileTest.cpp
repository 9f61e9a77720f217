#include "interaction/ClickHandleProfile.h"

#include "geometry/M3Ops.h"
#include "geometry/NumberText.h"
#include "geometry/Rounding.h"
#include "modelling/frmOrientation.h"
#include "render/KorvanOpsConsts.h"
#include "scene/COrientation.h"
#include "scene/Profile.h"
#include "scene/WorkPlane.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

namespace {

constexpr int32_t cyan = 16776960;
constexpr int top = 0; // the top view: depth 0 is the plane y = 0

// A window of four 400 x 300 viewports drawing a profile on a selected workplane through
// the origin.
struct Drawing : TestWindow {
    Drawing() {
        form.setViewportLayout(4);
        form.Form_Resize(1000, 600);
        auto workPlane = std::make_shared<WorkPlane>();
        workPlane->initialize(2, 0, 0, 0, 0);
        form.getDocument().workPlanes.push_back(workPlane);
        form.setSelectedWorkplanes({workPlane});
        choose({"&Create", "&Profile"});
    }

    // The canvas pixel where the world point (x, y, z) is seen in viewport index.
    Point4 pixel(int index, float x, float y, float z) const {
        Point4 seen;
        M3Ops::transformPoint(
            Point4{x, y, z, 1},
            KorvanOpsConsts::getFullViewMatrix(canvases[static_cast<size_t>(index)],
                                               form.getViewSpecs(index + 1)),
            seen);
        return seen;
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

TEST(ClickHandleProfile, ReadOutShowsThePointerAndAfterAClickItsDistanceAndTheRubberBand) {
    Drawing d;
    d.canvases[top].forget();
    d.move(top, d.pixel(top, 0.5f, 0, -0.25f));
    auto texts = callsOf(d.canvases[top], RecordingCanvas::Kind::Text);
    ASSERT_EQ(texts.size(), 3u);
    EXPECT_NEAR(valueOf(texts[0], "X : "), 0.5f, 0.01f);
    EXPECT_NEAR(valueOf(texts[1], "Y : "), 0.0f, 0.01f);
    EXPECT_NEAR(valueOf(texts[2], "Z : "), -0.25f, 0.01f);
    // On the last three lines, in 6 x 13 pixel cells on a 400 x 300 canvas.
    EXPECT_EQ(texts[2].points[0].y, 300 - 13);
    EXPECT_TRUE(callsOf(d.canvases[top], RecordingCanvas::Kind::LineTo).empty());

    const Point4 from = d.pixel(top, 0.5f, 0, -0.25f);
    const Point4 to = d.pixel(top, 1, 0, 0.5f);
    d.click(top, from);
    d.canvases[top].forget();
    d.canvases[2].forget();
    d.move(top, to);
    // Drawn in every viewport.
    EXPECT_EQ(callsOf(d.canvases[2], RecordingCanvas::Kind::Text).size(), 6u);
    texts = callsOf(d.canvases[top], RecordingCanvas::Kind::Text);
    ASSERT_EQ(texts.size(), 6u);
    EXPECT_NEAR(valueOf(texts[0], "X Dist: "), 0.5f, 0.01f);
    EXPECT_NEAR(valueOf(texts[1], "Y Dist: "), 0.0f, 0.01f);
    EXPECT_NEAR(valueOf(texts[2], "Z Dist: "), 0.75f, 0.01f);
    EXPECT_NEAR(valueOf(texts[3], "X : "), 1.0f, 0.01f);
    EXPECT_NEAR(valueOf(texts[4], "Y : "), 0.0f, 0.01f);
    EXPECT_NEAR(valueOf(texts[5], "Z : "), 0.5f, 0.01f);
    EXPECT_EQ(texts[0].points[0].y, 300 - 6 * 13);
    EXPECT_EQ(texts[3].points[0].x, 400 - 6 * static_cast<int>(texts[3].text.size()));

    const auto lineEnds = callsOf(d.canvases[top], RecordingCanvas::Kind::LineTo);
    ASSERT_FALSE(lineEnds.empty());
    const auto band = lineEnds.back();
    EXPECT_EQ(band.drawStyle, DrawSolid);
    EXPECT_EQ(band.points[0].x, Rounding::toInt32(to.x));
    EXPECT_EQ(band.points[0].y, Rounding::toInt32(to.y));
    const auto bandStart = callsOf(d.canvases[top], RecordingCanvas::Kind::MoveTo).back();
    EXPECT_EQ(bandStart.points[0].x, Rounding::toInt32(from.x));
    EXPECT_EQ(bandStart.points[0].y, Rounding::toInt32(from.y));
    EXPECT_NE(d.canvases[top].foreColor(), cyan); // the canvas's own colour again
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
    EXPECT_NEAR(second.y, 0.0f, 0.01f);
    EXPECT_NEAR(second.z, 0.5f, 0.01f);
    EXPECT_EQ(second.w, 1.0f);

    // The two segments' screen directions sum to more than 0: a clockwise guess.
    std::string guess;
    d.dialogs.queueDialog({[&guess](ModalDialog& dialog) {
                               guess =
                                   static_cast<frmOrientation&>(dialog).lblGuessOrientation.Caption;
                           },
                           ScriptedModalHost::press("mnuConfirm")});
    d.form.picOrtho_MouseDown(top, 4, 0, 200, 150);
    EXPECT_EQ(d.dialogs.shown(), std::vector<std::string>{"Confirm Orientation"});
    EXPECT_EQ(guess, "Clockwise");
    EXPECT_EQ(d.profile().getPointCount(), 4);
    EXPECT_EQ(d.form.getMouseMode().getMouseIcon(), MousePointer::Default);
}

TEST(ClickHandleProfile, ARefusedClickStillStartsTheRubberBand) {
    Drawing d;
    d.form.setSelectedWorkplanes({});
    d.click(top, d.pixel(top, 0, 0, 0));
    ASSERT_EQ(d.prompts.messages().size(), 1u);
    EXPECT_EQ(d.prompts.messages()[0].title, "Cannot add profile point");
    EXPECT_EQ(d.profile().getPointCount(), 0);
    d.canvases[top].forget();
    d.move(top, d.pixel(top, 1, 0, 0));
    EXPECT_EQ(callsOf(d.canvases[top], RecordingCanvas::Kind::Text).size(), 6u);
}

TEST(ClickHandleProfile, GuessIsUnknownBeforeAnyClick) {
    ClickHandleProfile tool;
    std::vector<std::any> datum;
    std::vector<std::any> castGuide;
    tool.getData(datum, castGuide);
    ASSERT_EQ(datum.size(), 1u);
    EXPECT_EQ(std::any_cast<COrientation>(datum[0]).getOrientation(), -1);
    EXPECT_TRUE(castGuide.empty());
}
