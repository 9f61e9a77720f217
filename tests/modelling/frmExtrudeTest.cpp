#include "modelling/frmExtrude.h"

#include "app/ViewportSet.h"
#include "geometry/CPoint3D.h"
#include "geometry/M3Ops.h"
#include "geometry/PackedColor.h"
#include "modelling/ExtrusionPreviewTarget.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "support/RecordingCanvas.h"
#include "support/ScriptedChoosers.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"

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

// A closed profile; its last stored point is its first point object again.
std::shared_ptr<Profile> closedProfile(const std::vector<Point4>& corners) {
    auto profile = std::make_shared<Profile>();
    for (const Point4& corner : corners) {
        auto point = std::make_shared<CPoint3D>();
        PointRecord record;
        record.coord = corner;
        point->setRecord(record);
        profile->addCPoint(point);
    }
    profile->addCPoint(profile->getCPoint(1));
    return profile;
}

// A square of side sqrt(2) standing on a corner in the plane z = 0, normal +z: 5 stored
// points, 4 corners.
std::shared_ptr<Profile> diamond() {
    return closedProfile({{0, 0, 0, 1}, {1, 1, 0, 1}, {0, 2, 0, 1}, {-1, 1, 0, 1}});
}

struct Fixture : ::testing::Test {
    ScriptedPrompts prompts;
    Host dialogs;
    ScriptedColorChooser colors;
    PreviewViewports viewports;
    frmExtrude form{dialogs, colors, viewports};
    std::shared_ptr<Profile> profile = diamond();

    void SetUp() override { form.initialize(profile); }

    std::shared_ptr<Solid3d> extrude(const std::vector<Host::Step>& steps) {
        for (const auto& step : steps) {
            step(form);
        }
        form.press("mnuExtrude");
        const auto result = form.getExtrusion();
        return result ? result->getSolid() : nullptr;
    }
    static float capZ(const Solid3d& solid, int face) {
        const auto& indices = solid.faces[static_cast<size_t>(face)]->getIndices();
        return solid.getPointRecord(indices.front()).coord.z;
    }
    static int32_t pointCount(const Solid3d& solid) { return solid.getNextPointIndex() - 1; }
};

using frmExtrudeTest = Fixture;

} // namespace

TEST_F(frmExtrudeTest, StartsWithTheDefaultControls) {
    EXPECT_EQ(form.txtExtrusionLength.Text, "1");
    EXPECT_EQ(form.txtIncrements.Text, "1");
    EXPECT_TRUE(form.optExtrude[0].Value);
    EXPECT_FALSE(form.optExtrude[1].Value);
    EXPECT_TRUE(form.chkCapEnds.Value);
    EXPECT_EQ(form.surface.HScrollSpecN.LargeChange, 5);
    EXPECT_FALSE(form.surface.picAmbColor.Enabled);
    EXPECT_FALSE(form.surface.cmdColorSelect2.Enabled);
    EXPECT_FALSE(form.surface.lblReflectionMost.Enabled);
    EXPECT_FALSE(form.surface.HScrollSpecN.Enabled);
    EXPECT_TRUE(prompts.messages().empty());
}

TEST_F(frmExtrudeTest, DefaultsMakeAPrismOfHeightOneOnTheNormalsSide) {
    const auto solid = extrude({});
    ASSERT_TRUE(solid);
    EXPECT_TRUE(form.isClosed());
    EXPECT_EQ(pointCount(*solid), 10);
    ASSERT_EQ(solid->GetFaceNum(), 10);
    EXPECT_EQ(solid->faces[8]->NumPts, 4);
    EXPECT_FLOAT_EQ(capZ(*solid, 8), 0.0f);
    EXPECT_FLOAT_EQ(capZ(*solid, 9), 1.0f);
    EXPECT_EQ(solid->faces[0]->AmbientKg, 0.5f);
    EXPECT_EQ(solid->faces[0]->DiffuseKb, 0.5f);
    EXPECT_EQ(solid->faces[0]->SpecularK, 0.5f);
    EXPECT_EQ(solid->faces[0]->SpecularN, 50.0f);
}

TEST_F(frmExtrudeTest, SubdivisionsSplitTheLengthIntoSegments) {
    // In sweeps to the normal's side whatever the length's sign.
    const auto solid =
        extrude({Host::type("txtExtrusionLength", "-10"), Host::type("txtIncrements", "4"),
                 Host::check("chkCapEnds", false)});
    ASSERT_TRUE(solid);
    EXPECT_EQ(pointCount(*solid), 40);
    EXPECT_EQ(solid->GetFaceNum(), 32);                       // side faces only: the caps are off
    EXPECT_FLOAT_EQ(solid->getPointRecord(10).coord.z, 2.5f); // end of the first segment
    EXPECT_FLOAT_EQ(solid->getPointRecord(40).coord.z, 10.0f);
}

TEST_F(frmExtrudeTest, OutMirrorsTheSweepAndReversesTheCurveOnly) {
    form.chooseOption("optExtrude(1)");
    EXPECT_FALSE(form.optExtrude[0].Value);
    const auto solid = extrude({Host::type("txtExtrusionLength", "-10")});
    ASSERT_TRUE(solid);
    EXPECT_FLOAT_EQ(capZ(*solid, 9), -10.0f);
    EXPECT_EQ(form.getExtrusion()->getCurvePoint(2).coord.x, -1.0f);
    EXPECT_EQ(profile->getPointRecord(2).coord.x, 1.0f);
}

TEST_F(frmExtrudeTest, SplitReachesHalfTheLengthToEachSideAndKeepsItsSign) {
    form.chooseOption("optExtrude(2)");
    const auto solid = extrude({Host::type("txtExtrusionLength", "-10")});
    ASSERT_TRUE(solid);
    EXPECT_FLOAT_EQ(capZ(*solid, 8), 5.0f);
    EXPECT_FLOAT_EQ(capZ(*solid, 9), -5.0f);
    EXPECT_EQ(profile->getPointRecord(1).coord.z, 0.0f);
}

TEST_F(frmExtrudeTest, FractionalSubdivisionsRepeatTheStepRoundedToEven) {
    // 2.5 subdivisions: steps of L / 2.5, repeated 1.5 -> 2 more times.
    const auto solid = extrude({Host::type("txtIncrements", "2.5")});
    ASSERT_TRUE(solid);
    EXPECT_EQ(form.getExtrusion()->getTransformationCount(), 3);
    EXPECT_FLOAT_EQ(capZ(*solid, solid->GetFaceNum() - 1), 1.2f);
}

TEST_F(frmExtrudeTest, ARotationEntryTwistsEveryStepAboutTheWorldAxis) {
    form.List1.items = {"Rotate(0,0,0.6)"};
    const auto solid = extrude({Host::type("txtIncrements", "3")});
    ASSERT_TRUE(solid);
    const auto object = form.getExtrusion();
    EXPECT_EQ(object->getTransformationCount(), 12);
    // The last ring: the corner (1, 1, 0) turned by 3 x 0.2 rad about z and raised by 1.
    Matrix4 turn;
    M3Ops::setRotationZ(turn, 0.6f);
    Point4 expected;
    M3Ops::transformPoint(Point4{1, 1, 0, 1}, turn, expected);
    const Point4 last = solid->getPointRecord(pointCount(*solid) - 6).coord;
    EXPECT_NEAR(last.x, expected.x, 1e-5);
    EXPECT_NEAR(last.y, expected.y, 1e-5);
    EXPECT_NEAR(last.z, 1.0f, 1e-5);
}

TEST_F(frmExtrudeTest, TheSurfaceGroupsSetTheCoefficients) {
    form.setChecked("useAmbient", true);
    EXPECT_TRUE(form.surface.picAmbColor.Enabled);
    EXPECT_TRUE(form.surface.cmdColorSelect.Enabled);
    EXPECT_FALSE(form.surface.cmdColorSelect2.Enabled);
    colors.queueAnswer(PackedColor::pack(64, 0, 255));
    form.press("cmdColorSelect");
    form.press("cmdColorSelect2"); // cancelled: the swatch keeps its colour
    const int32_t diffuseBefore = form.surface.picDifColor.BackColor;

    form.moveScrollBar("HScrollSpecK", 37);
    EXPECT_EQ(form.surface.lblReflection.Caption, "Reflection: 37%");
    form.moveScrollBar("HScrollSpecN", 12);
    EXPECT_EQ(form.surface.lblIntensity.Caption, "Intensity: 12");
    form.setChecked("UseSpecularK", true);
    EXPECT_TRUE(form.surface.lblReflectionLeast.Enabled);
    EXPECT_TRUE(form.surface.HScrollSpecK.Enabled);
    EXPECT_FALSE(form.surface.HScrollSpecN.Enabled);

    const auto solid = extrude({});
    ASSERT_TRUE(solid);
    EXPECT_EQ(form.surface.picDifColor.BackColor, diffuseBefore);
    EXPECT_EQ(solid->faces[0]->AmbientKr, 0.25f);
    EXPECT_EQ(solid->faces[0]->AmbientKb, 255.0f / 256.0f);
    EXPECT_EQ(solid->faces[0]->DiffuseKr, 0.5f);
    EXPECT_EQ(solid->faces[0]->SpecularK, 0.37f);
    EXPECT_EQ(solid->faces[0]->SpecularN, 50.0f); // the intensity is not in use
}

TEST_F(frmExtrudeTest, BadLengthOrSubdivisionsEmptyAndFocusTheBox) {
    form.typeText("txtExtrusionLength", "1,5");
    form.press("mnuExtrude");
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text,
              "Invalid Extrusion Length.  Value must be present and numeric.");
    EXPECT_EQ(prompts.messages()[0].title, "Invalid Extrusion Input");
    EXPECT_EQ(prompts.messages()[0].icon, MessageIcon::Information);
    EXPECT_EQ(form.txtExtrusionLength.Text, "");
    EXPECT_TRUE(form.txtExtrusionLength.Focused);

    form.typeText("txtExtrusionLength", "2");
    form.typeText("txtIncrements", "0.5");
    form.press("mnuExtrude");
    ASSERT_EQ(prompts.messages().size(), 2u);
    EXPECT_EQ(prompts.messages()[1].text, "Invalid Extrusion Increment.  Value must be present "
                                          "and greater than or equal to 1.");
    EXPECT_EQ(form.txtIncrements.Text, "");
    EXPECT_TRUE(form.txtIncrements.Focused);
    EXPECT_FALSE(form.txtExtrusionLength.Focused);
    EXPECT_FALSE(form.isClosed());
    EXPECT_FALSE(form.getExtrusion());

    // More steps than a sweep holds are refused the same way.
    form.typeText("txtIncrements", "40000");
    form.press("mnuExtrude");
    EXPECT_EQ(prompts.messages().size(), 3u);
    EXPECT_FALSE(form.getExtrusion());

    form.typeText("txtIncrements", "1");
    form.press("mnuExtrude");
    EXPECT_TRUE(form.getExtrusion());
}

TEST_F(frmExtrudeTest, AnEntryWithoutThreeNumbersRefusesTheExtrusion) {
    form.List1.items = {"Scale(1,1,1)", "Rotate(a,0,0)"};
    form.press("mnuExtrude");
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_NE(prompts.messages()[0].text.find("Rotate(a,0,0)"), std::string::npos);
    EXPECT_EQ(form.List1.ListIndex, 1);
    EXPECT_FALSE(form.isClosed());
    EXPECT_FALSE(form.getExtrusion());
}

TEST(frmExtrude, AProfileWithoutANormalIsRefusedAndClosesTheDialog) {
    ScriptedPrompts prompts;
    Host dialogs;
    ScriptedColorChooser colors;
    PreviewViewports viewports;
    // The last corner lies on the first edge: the two edges at the first point are parallel.
    frmExtrude flat(dialogs, colors, viewports);
    flat.initialize(closedProfile({{0, 0, 0, 1}, {2, 0, 0, 1}, {2, 1, 0, 1}, {1, 0, 0, 1}}));
    ASSERT_FALSE(prompts.messages().empty());
    EXPECT_EQ(prompts.messages().back().text,
              "Profile is of un-extrudable shape.  Please redraw or alter profile.");
    EXPECT_EQ(prompts.messages().back().title, "Unable to Extrude Profile");
    EXPECT_TRUE(flat.isClosed());
    EXPECT_FALSE(flat.getExtrusion());

    prompts.forget();
    frmExtrude none(dialogs, colors, viewports);
    none.initialize(nullptr);
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text,
              "No profile selected for extrusion.  Please select a profile using the profile "
              "selector tool.  Now exitting extrusion");
    EXPECT_EQ(prompts.messages()[0].title, "Extrusion Error");
    EXPECT_TRUE(none.isClosed());
}

TEST_F(frmExtrudeTest, TheListButtonsAddRemoveAndMoveWithWrapAround) {
    prompts.queueInput("2");
    prompts.queueInput("2");
    prompts.queueInput("1");
    dialogs.queueDialog({Host::pick("List1", 2), Host::press("mnuSelect")});
    dialogs.queueDialog({Host::press("mnuCancel")});
    form.press("cmdAddTrans");
    form.press("cmdAddTrans");
    EXPECT_EQ(form.List1.items, (std::vector<std::string>{"Scale(2,2,1)"}));

    form.List1.items = {"A", "B", "C"};
    form.press("cmdMoveUpTrans"); // nothing selected
    EXPECT_EQ(form.List1.items, (std::vector<std::string>{"A", "B", "C"}));
    form.pickListLine("List1", 0);
    form.press("cmdMoveUpTrans");
    EXPECT_EQ(form.List1.items, (std::vector<std::string>{"B", "C", "A"}));
    EXPECT_EQ(form.List1.ListIndex, 2);
    form.press("cmdMoveDownTrans");
    EXPECT_EQ(form.List1.items, (std::vector<std::string>{"A", "B", "C"}));
    EXPECT_EQ(form.List1.ListIndex, 0);
    form.press("cmdMoveDownTrans");
    EXPECT_EQ(form.List1.items, (std::vector<std::string>{"B", "A", "C"}));
    EXPECT_EQ(form.List1.ListIndex, 1);
    form.press("cmdRemoveTrans");
    EXPECT_EQ(form.List1.items, (std::vector<std::string>{"B", "C"}));
    form.press("cmdRemoveTrans"); // nothing selected any more
    EXPECT_EQ(form.List1.items.size(), 2u);
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

TEST(frmExtrude, AnExtrusionTooLargeToHoldIsRefusedBeforeItIsMade) {
    ScriptedPrompts prompts;
    Host dialogs;
    ScriptedColorChooser colors;
    PreviewViewports viewports;
    // 400 corners: 12,500 subdivisions make 10,000,000 side faces on 10,025,000 points.
    std::vector<Point4> corners;
    for (int k = 0; k < 400; ++k) {
        const double t = 6.283185307179586 * k / 400;
        corners.push_back({static_cast<float>(std::cos(t)), static_cast<float>(std::sin(t)), 0, 1});
    }
    const struct {
        bool caps;
        std::string message;
    } cases[] = {
        {true, "The extrusion would have 10000002 faces; at most 10000000 can be made."},
        {false, "The extrusion would have 10025000 points; at most 10000000 can be made."},
    };
    for (const auto& [caps, message] : cases) {
        prompts.forget();
        frmExtrude form(dialogs, colors, viewports);
        form.initialize(closedProfile(corners));
        form.setChecked("chkCapEnds", caps);
        form.typeText("txtIncrements", "12500");
        form.press("mnuExtrude");
        ASSERT_EQ(prompts.messages().size(), 1u) << caps;
        EXPECT_EQ(prompts.messages()[0].text, message);
        EXPECT_EQ(prompts.messages()[0].title, "Invalid Extrusion Input");
        EXPECT_EQ(prompts.messages()[0].icon, MessageIcon::Information);
        EXPECT_EQ(form.txtIncrements.Text, "") << caps;
        EXPECT_TRUE(form.txtIncrements.Focused) << caps;
        EXPECT_FALSE(form.isClosed()) << caps;
        EXPECT_FALSE(form.getExtrusion()) << caps;
    }
}
