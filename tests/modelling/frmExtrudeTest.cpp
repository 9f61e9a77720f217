#include "modelling/frmExtrude.h"

#include "app/ViewportSet.h"
#include "geometry/PackedColor.h"
#include "modelling/ExtrusionPreviewTarget.h"
#include "support/RecordingCanvas.h"
#include "support/ScriptedChoosers.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSolids.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using Host = ScriptedModalHost;

// Four viewports with the start-up views, drawn into recording canvases.
class PreviewViewports : public ExtrusionPreviewTarget {
public:
    void getPicOrthoBounds(int32_t& lower, int32_t& upper) const override {
        lower = 0;
        upper = 3;
    }
    Canvas* getPicOrtho(int32_t index) const override {
        return const_cast<RecordingCanvas*>(&canvases[static_cast<size_t>(index)]);
    }
    std::optional<viewInfo> getViewInfo(int32_t index) const override {
        return viewports.getViewInfo(index);
    }

    std::array<RecordingCanvas, 4> canvases;
    ViewportSet viewports;
};

// A square standing on a corner in the plane z = 0, normal +z: 5 stored points, 4 corners.
struct frmExtrudeTest : ::testing::Test {
    ScriptedPrompts prompts;
    Host dialogs;
    ScriptedColorChooser colors;
    PreviewViewports viewports;
    std::shared_ptr<Profile> profile = makeDiamondProfile();
    frmExtrude form{dialogs, colors, viewports};

    void SetUp() override { form.initialize(profile); }
};

} // namespace

// Sweep points come in pairs per curve point and step: 2j - 1 where point j was, 2j where
// the step takes it; the last point is where the steps take the first corner (0, 0, 0).
TEST_F(frmExtrudeTest, ModesLengthsSubdivisionsAndEntriesShapeTheSweep) {
    const float c = std::cos(0.6f), s = std::sin(0.6f);
    struct Row {
        int mode;
        const char* length;
        const char* subdivisions;
        bool caps;
        const char* entry;
        int points, faces, at;
        float x, y, z;
    };
    const Row rows[] = {
        {0, "1", "1", true, "", 10, 10, 3, 1, 1, 0}, // the defaults: In
        {0, "1", "1", true, "", 10, 10, 10, 0, 0, 1},
        {0, "-10", "4", false, "", 40, 32, 10, 0, 0, 2.5f}, // In ignores the sign
        {0, "-10", "4", false, "", 40, 32, 40, 0, 0, 10},
        {1, "-10", "1", true, "", 10, 10, 3, -1, 1, 0}, // Out reverses the curve
        {1, "-10", "1", true, "", 10, 10, 10, 0, 0, -10},
        {2, "-10", "1", true, "", 10, 10, 3, 1, 1, 5}, // Split keeps the sign
        {2, "-10", "1", true, "", 10, 10, 10, 0, 0, -5},
        {0, "1", "2.5", true, "", 30, 26, 30, 0, 0, 1.2f}, // 1 + 2 steps: halves to even
        {0, "1", "3", true, "Translate(3,-1.5,0)", 60, 50, 60, 3, -1.5f, 1},   // values / n
        {0, "1", "3", true, "Rotate(0,0,0.6)", 120, 98, 114, c - s, s + c, 1}, // world axes
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(::testing::Message()
                     << "mode " << row.mode << ", " << row.length << ", " << row.subdivisions
                     << ", " << row.entry << ", point " << row.at);
        frmExtrude dialog(dialogs, colors, viewports);
        dialog.initialize(profile);
        dialog.chooseOption("optExtrude(" + std::to_string(row.mode) + ")");
        dialog.typeText("txtExtrusionLength", row.length);
        dialog.typeText("txtIncrements", row.subdivisions);
        dialog.setChecked("chkCapEnds", row.caps);
        dialog.List1.items = {row.entry};
        dialog.press("mnuExtrude");
        ASSERT_TRUE(dialog.getExtrusion());
        EXPECT_TRUE(dialog.isClosed());
        const auto solid = dialog.getExtrusion()->getSolid();
        EXPECT_EQ(solid->getNextPointIndex() - 1, row.points);
        EXPECT_EQ(solid->GetFaceNum(), row.faces);
        const Point4 at = solid->getPointRecord(row.at).coord;
        EXPECT_NEAR(at.x, row.x, 1e-5);
        EXPECT_NEAR(at.y, row.y, 1e-5);
        EXPECT_NEAR(at.z, row.z, 1e-5);
    }
    EXPECT_TRUE(prompts.messages().empty());
    EXPECT_EQ(profile->getPointRecord(2).coord, (Point4{1, 1, 0, 1})); // the profile stays
}

// A bad length or subdivision count empties its box and gives it the focus; a bad entry is
// selected in the list. On 400 corners, 6,250 subdivisions of two steps would make 10,000,000 side
// faces on 10,025,000 points: too many to hold, refused before they are made.
TEST_F(frmExtrudeTest, BadInputIsReportedAndRefusesTheExtrusion) {
    std::vector<Point4> corners;
    for (int k = 0; k < 400; ++k) {
        const double t = 6.283185307179586 * k / 400;
        corners.push_back({static_cast<float>(std::cos(t)), static_cast<float>(std::sin(t)), 0, 1});
    }
    const std::tuple<const char*, const char*, const char*, int, bool, std::string> rows[] = {
        {"1,5", "1", "", 0, true, "Invalid Extrusion Length.  Value must be present and numeric."},
        {"2", "0.5", "", 1, true,
         "Invalid Extrusion Increment.  Value must be present and greater than or equal to 1."},
        {"2", "40000", "", 1, true,
         "Too many extrusion steps.  Subdivisions times the matrices of one step may not exceed "
         "32767."},
        {"2", "1", "Rotate(a,0,0)", -1, true,
         "Invalid Additional Transformation Rotate(a,0,0).  Its three values must be present and "
         "numeric."},
        {"1", "6250", "", 1, true,
         "The extrusion would have 10000002 faces; at most 10000000 can be made."},
        {"1", "6250", "", 1, false,
         "The extrusion would have 10025000 points; at most 10000000 can be made."},
    };
    for (const auto& [length, subdivisions, entry, emptied, caps, message] : rows) {
        SCOPED_TRACE(message);
        prompts.forget();
        frmExtrude dialog(dialogs, colors, viewports);
        const bool big = std::string(subdivisions) == "6250";
        dialog.initialize(big ? makeProfile(corners, true) : profile);
        dialog.setChecked("chkCapEnds", caps);
        dialog.typeText("txtExtrusionLength", length);
        dialog.typeText("txtIncrements", subdivisions);
        dialog.List1.items = {"Scale(1,1,1)", entry};
        dialog.press("mnuExtrude");
        ASSERT_EQ(prompts.messages().size(), 1u);
        EXPECT_EQ(prompts.messages()[0].text, message);
        EXPECT_EQ(prompts.messages()[0].title, "Invalid Extrusion Input");
        EXPECT_EQ(prompts.messages()[0].icon, MessageIcon::Information);
        const TextBoxState* boxes[] = {&dialog.txtExtrusionLength, &dialog.txtIncrements};
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(boxes[i]->Focused, i == emptied) << i;
            EXPECT_EQ(boxes[i]->Text.empty(), i == emptied) << i;
        }
        EXPECT_EQ(dialog.List1.ListIndex, emptied == -1 ? 1 : -1);
        EXPECT_FALSE(dialog.isClosed());
        EXPECT_FALSE(dialog.getExtrusion());
    }
}

TEST_F(frmExtrudeTest, AProfileWithoutANormalOrNoProfileClosesTheDialog) {
    // The last corner lies on the first edge: the two edges at the first point are parallel.
    const std::tuple<std::shared_ptr<Profile>, std::string, std::string> rows[] = {
        {makeProfile({{0, 0, 0, 1}, {2, 0, 0, 1}, {2, 1, 0, 1}, {1, 0, 0, 1}}, true),
         "Profile is of un-extrudable shape.  Please redraw or alter profile.",
         "Unable to Extrude Profile"},
        {nullptr,
         "No profile selected for extrusion.  Please select a profile using the profile "
         "selector tool.  Now exitting extrusion",
         "Extrusion Error"},
    };
    for (const auto& [refused, text, title] : rows) {
        SCOPED_TRACE(text);
        prompts.forget();
        frmExtrude dialog(dialogs, colors, viewports);
        dialog.initialize(refused);
        ASSERT_FALSE(prompts.messages().empty());
        EXPECT_EQ(prompts.messages().back().text, text);
        EXPECT_EQ(prompts.messages().back().title, title);
        EXPECT_TRUE(dialog.isClosed());
        EXPECT_FALSE(dialog.getExtrusion());
    }
}

TEST_F(frmExtrudeTest, TheListButtonsAddRemoveAndMoveWithWrapAround) {
    prompts.queueInput("2", "2", "1");
    dialogs.queueDialog({Host::pick("List1", 2), Host::press("mnuSelect")});
    dialogs.queueDialog({Host::press("mnuCancel")});
    form.press("cmdAddTrans");
    form.press("cmdAddTrans");
    EXPECT_EQ(form.List1.items, (std::vector<std::string>{"Scale(2,2,1)"}));

    // Lines picked (-2: none picked), buttons pressed, the list and its selection after.
    using Lines = std::vector<std::string>;
    form.List1.items = {"A", "B", "C"};
    EXPECT_THROW(form.pickListLine("List1", 3), std::invalid_argument);
    EXPECT_THROW(form.press("List1"), std::invalid_argument); // a list is no button
    const std::tuple<int, const char*, Lines, int> steps[] = {
        {-2, "cmdMoveUpTrans", {"A", "B", "C"}, -1},  {0, "cmdMoveUpTrans", {"B", "C", "A"}, 2},
        {-2, "cmdMoveDownTrans", {"A", "B", "C"}, 0}, {-2, "cmdMoveDownTrans", {"B", "A", "C"}, 1},
        {-2, "cmdRemoveTrans", {"B", "C"}, -1},       {-2, "cmdRemoveTrans", {"B", "C"}, -1}};
    for (const auto& [line, button, lines, selected] : steps) {
        SCOPED_TRACE(button);
        if (line != -2) {
            form.pickListLine("List1", line);
        }
        form.press(button);
        EXPECT_EQ(form.List1.items, lines);
        EXPECT_EQ(form.List1.ListIndex, selected);
    }
}

TEST_F(frmExtrudeTest, PreviewDrawsTheUnitNormalInCyanInEveryViewport) {
    form.press("mnuPreview");
    for (const RecordingCanvas& canvas : viewports.canvases) {
        const auto& calls = canvas.calls();
        const auto line = std::find_if(calls.begin(), calls.end(), [](const auto& call) {
            return call.kind == RecordingCanvas::Kind::LineTo;
        });
        ASSERT_NE(line, calls.end());
        EXPECT_EQ(line->foreColor, 16776960);
        EXPECT_EQ(calls.back().kind, RecordingCanvas::Kind::Refresh);
    }
    EXPECT_FALSE(form.isClosed());
    EXPECT_EQ(form.getNormal().getAmplitude(), 1.0f);
}
