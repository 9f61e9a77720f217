#include "modelling/frmFaceProperty.h"

#include "modelling/frmPointIndexSelect.h"
#include "support/ScriptedChoosers.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSolids.h"

#include <gtest/gtest.h>

namespace {

using Host = ScriptedModalHost;
using Indices = std::vector<int32_t>;

// The +z face of a cube, listing points 5, 6, 7, 8.
struct frmFacePropertyOnACube : ::testing::Test {
    ScriptedPrompts prompts;
    Host dialogs;
    ScriptedColorChooser colors;
    std::shared_ptr<Solid3d> cube = makeCube();
    std::shared_ptr<Face3d> face = cube->faces[0];
    frmFaceProperty form{dialogs, colors};

    void SetUp() override { form.initialize(face); }
    // The picker's script: choose point `point` (1-based) and press Select.
    void queuePick(int32_t point) {
        dialogs.queueDialog({Host::pick("List1", point - 1), Host::press("mnuSelect")});
    }
};

} // namespace

TEST_F(frmFacePropertyOnACube, CoefficientsRoundTripThroughTheSwatchesAndBars) {
    face->AmbientKr = 0.5f;
    face->AmbientKg = 1.0f;
    face->DiffuseKb = 0.3f; // 76.8: the nearest channel, not the one below
    face->SpecularK = 0.29f;
    face->SpecularN = 150.0f;
    frmFaceProperty shown(dialogs, colors);
    shown.initialize(face);
    EXPECT_EQ(shown.picAmbColor.BackColor, 128 + 256 * 255);
    EXPECT_EQ(shown.picDifColor.BackColor, 65536 * 77);
    EXPECT_EQ(shown.lblReflection.Caption, "Reflection: 29%");
    // An exponent beyond the bar shows at its end, the label tells the true value, and
    // Accept keeps it.
    EXPECT_EQ(shown.HScrollSpecN.Value, 100);
    EXPECT_EQ(shown.lblIntensity.Caption, "Intensity: 150");
    shown.setChecked("OrientSwitch", true);
    shown.press("mnuAccept");
    EXPECT_EQ(face->AmbientKg, 255.0f / 256.0f);
    EXPECT_EQ(face->DiffuseKb, 77.0f / 256.0f);
    EXPECT_FLOAT_EQ(face->SpecularK, 0.29f);
    EXPECT_EQ(face->SpecularN, 150.0f);
    EXPECT_EQ(face->getIndices(), (Indices{8, 7, 6, 5}));
}

TEST_F(frmFacePropertyOnACube, CancelLeavesTheFaceAsItWas) {
    form.moveScrollBar("HScrollSpecN", 1000); // to the bar's end
    EXPECT_EQ(form.lblIntensity.Caption, "Intensity: 100");
    form.press("mnuCancel");
    EXPECT_EQ(face->SpecularN, 0.0f);
}

TEST_F(frmFacePropertyOnACube, AddInsertsBeforeTheSelectedEntryAndAsksAtTheLast) {
    form.press("cmdAddIndex"); // nothing selected: no picker
    EXPECT_TRUE(dialogs.shown().empty());
    form.pickListLine("listPointIndex", 1);
    queuePick(1);
    form.press("cmdAddIndex");
    EXPECT_TRUE(prompts.messages().empty());

    for (const auto& [line, point, answer] :
         {std::tuple{4, 2, MessageAnswer::Yes}, std::tuple{5, 3, MessageAnswer::No}}) {
        form.pickListLine("listPointIndex", line);
        queuePick(point);
        prompts.queueAnswer(answer);
        form.press("cmdAddIndex");
    }
    ASSERT_EQ(prompts.messages().size(), 2u);
    EXPECT_EQ(prompts.messages()[0].text,
              "Do you want to add new point index before last(yes) entry or after(no)?");
    EXPECT_EQ(prompts.messages()[0].title, "Point Index Entry");
    EXPECT_EQ(prompts.messages()[0].buttons, MessageButtons::YesNo);

    form.pickListLine("listPointIndex", 0);
    dialogs.queueDialog({Host::press("mnuCancel")}); // a cancelled picker adds nothing
    form.press("cmdAddIndex");
    form.press("mnuAccept");
    EXPECT_EQ(face->getIndices(), (Indices{5, 1, 6, 7, 2, 8, 3}));
}

TEST_F(frmFacePropertyOnACube, ModifyPreselectsThePointAndRemoveStopsAtThree) {
    int preselected = -2;
    form.pickListLine("listPointIndex", 2);
    dialogs.queueDialog({[&preselected](ModalDialog& picker) {
                             preselected =
                                 static_cast<frmPointIndexSelect&>(picker).List1.ListIndex;
                         },
                         Host::pick("List1", 0), Host::press("mnuSelect")});
    form.press("cmdModifyIndex");
    EXPECT_EQ(preselected, 6); // point 7
    EXPECT_EQ(form.listPointIndex.ListIndex, 2);

    for (int i = 0; i < 2; ++i) {
        form.pickListLine("listPointIndex", 0);
        form.press("cmdRemoveIndex");
    }
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text, "Cannot delete point index reference.  A face cannot "
                                          "have less than 3 points after deletion.");
    EXPECT_EQ(prompts.messages()[0].title, "Cannot delete");
    form.press("mnuAccept");
    EXPECT_EQ(face->getIndices(), (Indices{6, 1, 8}));
}
