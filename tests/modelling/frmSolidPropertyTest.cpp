#include "modelling/frmSolidProperty.h"

#include "geometry/PackedColor.h"
#include "support/ScriptedChoosers.h"
#include "support/TestSolids.h"

#include <gtest/gtest.h>

namespace {

using Indices = std::vector<int32_t>;

// A cube whose faces all start with coefficients 0.125 and exponent 7.
struct frmSolidPropertyOnACube : ::testing::Test {
    ScriptedColorChooser colors;
    std::shared_ptr<Transformed3d> object = std::make_shared<Transformed3d>();
    frmSolidProperty form{colors};

    frmSolidPropertyOnACube() {
        object->setSolid(makeCube());
        object->SetAmbientCoefficients(0.125f, 0.125f, 0.125f);
        object->SetDiffuseCoefficients(0.125f, 0.125f, 0.125f);
        object->SetSpecularCoefficients(0.125f, 7);
        form.initialize(object);
    }
    const Face3d& face(size_t i) const { return *object->getSolid()->faces[i]; }
};

} // namespace

// The surface groups the extrusion dialog shares: each group's controls follow its box.
TEST_F(frmSolidPropertyOnACube, AGroupIsEnabledWhileItsBoxIsTicked) {
    SurfaceGroup& s = form.surface;
    const std::pair<const char*, std::vector<const bool*>> groups[] = {
        {"useAmbient", {&s.lblAmbColor.Enabled, &s.picAmbColor.Enabled, &s.cmdColorSelect.Enabled}},
        {"useDiffuse",
         {&s.lblDifColor.Enabled, &s.picDifColor.Enabled, &s.cmdColorSelect2.Enabled}},
        {"UseSpecularK",
         {&s.lblReflectionLeast.Enabled, &s.lblReflection.Enabled, &s.lblReflectionMost.Enabled,
          &s.HScrollSpecK.Enabled}},
        {"useSpecularN",
         {&s.lblIntensityLeast.Enabled, &s.lblIntensity.Enabled, &s.lblIntensityMost.Enabled,
          &s.HScrollSpecN.Enabled}}};
    for (const auto& [box, enabled] : groups) {
        for (const bool ticked : {true, false}) {
            form.setChecked(box, ticked);
            for (const auto& [other, controls] : groups) {
                for (size_t i = 0; i < controls.size(); ++i) {
                    EXPECT_EQ(*controls[i], ticked && other == box)
                        << box << (ticked ? " ticked: " : " cleared: ") << other << " " << i;
                }
            }
        }
    }
}

TEST_F(frmSolidPropertyOnACube, AcceptWritesTheTickedGroupsToEveryFace) {
    form.setChecked("useAmbient", true);
    form.press("cmdColorSelect"); // cancelled: the swatch keeps its mid grey
    form.setChecked("useDiffuse", true);
    colors.queueAnswer(PackedColor::pack(64, 128, 255));
    form.press("cmdColorSelect2");
    form.setChecked("UseSpecularK", true);
    form.moveScrollBar("HScrollSpecK", 40);
    EXPECT_EQ(form.surface.lblReflection.Caption, "Reflection: 40%");
    form.moveScrollBar("HScrollSpecN", 90); // its group stays unticked
    EXPECT_EQ(form.surface.lblIntensity.Caption, "Intensity: 90");
    form.press("mnuAccept");
    EXPECT_TRUE(form.isClosed());
    for (size_t i : {size_t{0}, size_t{5}}) {
        EXPECT_EQ(face(i).AmbientKr, 0.5f);
        EXPECT_EQ(face(i).DiffuseKr, 0.25f);
        EXPECT_EQ(face(i).DiffuseKb, 255.0f / 256.0f);
        EXPECT_FLOAT_EQ(face(i).SpecularK, 0.4f);
        EXPECT_EQ(face(i).SpecularN, 7.0f);
    }
    EXPECT_EQ(face(0).getIndices(), (Indices{5, 6, 7, 8}));
}

TEST_F(frmSolidPropertyOnACube, SwitchOrientationTurnsEveryFaceOnAcceptOnly) {
    for (const char* button : {"mnuCancel", "mnuAccept"}) {
        frmSolidProperty dialog(colors);
        dialog.initialize(object);
        dialog.setChecked("useSpecularN", true);
        dialog.moveScrollBar("HScrollSpecN", 90);
        dialog.setChecked("OrientSwitch", true);
        dialog.press(button);
        EXPECT_EQ(dialog.reversedFaces(), std::string(button) == "mnuAccept") << button;
    }
    EXPECT_EQ(face(0).getIndices(), (Indices{8, 7, 6, 5}));
    EXPECT_EQ(face(5).getIndices(), (Indices{5, 6, 2, 1}));
    EXPECT_EQ(face(0).AmbientKr, 0.125f);
    EXPECT_EQ(face(0).SpecularN, 90.0f);
}
