#include "modelling/frmSolidProperty.h"

#include "geometry/PackedColor.h"
#include "scene/Transformed3d.h"
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

TEST_F(frmSolidPropertyOnACube, AGroupIsEnabledWhileItsBoxIsTicked) {
    EXPECT_FALSE(form.surface.picAmbColor.Enabled);
    EXPECT_FALSE(form.surface.cmdColorSelect2.Enabled);
    EXPECT_FALSE(form.surface.lblReflection.Enabled);
    EXPECT_FALSE(form.surface.HScrollSpecN.Enabled);

    form.setChecked("useAmbient", true);
    form.setChecked("useSpecularN", true);
    EXPECT_TRUE(form.surface.lblAmbColor.Enabled);
    EXPECT_TRUE(form.surface.picAmbColor.Enabled);
    EXPECT_TRUE(form.surface.cmdColorSelect.Enabled);
    EXPECT_FALSE(form.surface.picDifColor.Enabled);
    EXPECT_FALSE(form.surface.HScrollSpecK.Enabled);
    EXPECT_TRUE(form.surface.lblIntensityLeast.Enabled);
    EXPECT_TRUE(form.surface.lblIntensity.Enabled);
    EXPECT_TRUE(form.surface.HScrollSpecN.Enabled);

    form.setChecked("useAmbient", false);
    EXPECT_FALSE(form.surface.cmdColorSelect.Enabled);
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
        EXPECT_EQ(face(i).AmbientKb, 0.5f);
        EXPECT_EQ(face(i).DiffuseKr, 0.25f);
        EXPECT_EQ(face(i).DiffuseKg, 0.5f);
        EXPECT_EQ(face(i).DiffuseKb, 255.0f / 256.0f);
        EXPECT_FLOAT_EQ(face(i).SpecularK, 0.4f);
        EXPECT_EQ(face(i).SpecularN, 7.0f);
    }
    EXPECT_EQ(face(0).getIndices(), (Indices{5, 6, 7, 8}));
}

TEST_F(frmSolidPropertyOnACube, SwitchOrientationTurnsEveryFace) {
    form.setChecked("OrientSwitch", true);
    form.press("mnuAccept");
    EXPECT_EQ(face(0).getIndices(), (Indices{8, 7, 6, 5}));
    EXPECT_EQ(face(5).getIndices(), (Indices{5, 6, 2, 1}));
    EXPECT_EQ(face(0).AmbientKr, 0.125f);
    EXPECT_EQ(face(0).SpecularN, 7.0f);
}

TEST_F(frmSolidPropertyOnACube, CancelChangesNothing) {
    form.setChecked("useAmbient", true);
    form.setChecked("useSpecularN", true);
    form.moveScrollBar("HScrollSpecN", 90);
    form.setChecked("OrientSwitch", true);
    form.press("mnuCancel");
    EXPECT_TRUE(form.isClosed());
    EXPECT_EQ(face(0).AmbientKr, 0.125f);
    EXPECT_EQ(face(0).SpecularN, 7.0f);
    EXPECT_EQ(face(0).getIndices(), (Indices{5, 6, 7, 8}));
}
