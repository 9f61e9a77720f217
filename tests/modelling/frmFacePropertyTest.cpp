#include "modelling/frmFaceProperty.h"

#include "geometry/CPoint3D.h"
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

    void open() { form.initialize(face); }
    // The picker's script: choose point `point` (1-based) and press Select.
    void queuePick(int32_t point) {
        dialogs.queueDialog({Host::pick("List1", point - 1), Host::press("mnuSelect")});
    }
};

} // namespace

TEST_F(frmFacePropertyOnACube, CoefficientsRoundTripThroughTheSwatchesAndBars) {
    face->AmbientKr = 0.5f;
    face->AmbientKg = 1.0f;
    face->AmbientKb = 0.0f;
    face->DiffuseKg = 0.25f;
    face->DiffuseKb = 0.3f; // 76.8: the nearest channel, not the one below
    face->SpecularK = 0.29f;
    face->SpecularN = 150.0f;
    open();
    EXPECT_EQ(form.picAmbColor.BackColor, 128 + 256 * 255);
    EXPECT_EQ(form.picDifColor.BackColor, 256 * 64 + 65536 * 77);
    EXPECT_EQ(form.HScrollSpecK.Value, 29);
    EXPECT_EQ(form.lblReflection.Caption, "Reflection: 29%");
    // An exponent beyond the bar shows at its end, and the label tells the true value.
    EXPECT_EQ(form.HScrollSpecN.Value, 100);
    EXPECT_EQ(form.lblIntensity.Caption, "Intensity: 150");

    form.press("mnuAccept");
    EXPECT_TRUE(form.isClosed());
    EXPECT_EQ(face->AmbientKr, 0.5f);
    EXPECT_EQ(face->AmbientKg, 255.0f / 256.0f);
    EXPECT_EQ(face->AmbientKb, 0.0f);
    EXPECT_EQ(face->DiffuseKg, 0.25f);
    EXPECT_EQ(face->DiffuseKb, 77.0f / 256.0f);
    EXPECT_FLOAT_EQ(face->SpecularK, 0.29f);
    EXPECT_EQ(face->SpecularN, 150.0f);
}

TEST_F(frmFacePropertyOnACube, ChangesReachTheFaceOnAcceptOnly) {
    open();
    colors.queueAnswer(0x0000FF); // red
    form.press("Command1");
    form.moveScrollBar("HScrollSpecK", 40);
    form.moveScrollBar("HScrollSpecN", 20);
    EXPECT_EQ(form.lblReflection.Caption, "Reflection: 40%");
    EXPECT_EQ(form.lblIntensity.Caption, "Intensity: 20");
    form.pickListLine("listPointIndex", 0);
    form.press("cmdRemoveIndex");
    form.setChecked("OrientSwitch", true);
    form.press("mnuCancel");
    EXPECT_TRUE(form.isClosed());
    EXPECT_EQ(face->DiffuseKr, 0.0f);
    EXPECT_EQ(face->SpecularK, 0.0f);
    EXPECT_EQ(face->SpecularN, 0.0f);
    EXPECT_EQ(face->getIndices(), (Indices{5, 6, 7, 8}));

    frmFaceProperty accepted(dialogs, colors);
    accepted.initialize(face);
    colors.queueAnswer(0x0000FF);
    accepted.press("Command1");
    accepted.moveScrollBar("HScrollSpecK", 40);
    accepted.moveScrollBar("HScrollSpecN", 20);
    accepted.setChecked("OrientSwitch", true);
    accepted.press("mnuAccept");
    EXPECT_EQ(face->DiffuseKr, 255.0f / 256.0f);
    EXPECT_EQ(face->DiffuseKg, 0.0f);
    EXPECT_FLOAT_EQ(face->SpecularK, 0.4f);
    EXPECT_EQ(face->SpecularN, 20.0f);
    // Only this face turns round.
    EXPECT_EQ(face->getIndices(), (Indices{8, 7, 6, 5}));
    EXPECT_EQ(cube->faces[1]->getIndices(), (Indices{1, 4, 3, 2}));
}

TEST_F(frmFacePropertyOnACube, AddInsertsBeforeTheSelectedEntryAndAsksAtTheLast) {
    open();
    EXPECT_EQ(form.listPointIndex.items,
              (std::vector<std::string>{"Point: 5", "Point: 6", "Point: 7", "Point: 8"}));
    form.press("cmdAddIndex"); // nothing selected: no picker
    EXPECT_TRUE(dialogs.shown().empty());

    form.pickListLine("listPointIndex", 1);
    queuePick(1);
    form.press("cmdAddIndex");
    EXPECT_TRUE(prompts.messages().empty());

    form.pickListLine("listPointIndex", 4);
    queuePick(2);
    prompts.queueAnswer(MessageAnswer::Yes);
    form.press("cmdAddIndex");
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text,
              "Do you want to add new point index before last(yes) entry or after(no)?");
    EXPECT_EQ(prompts.messages()[0].title, "Point Index Entry");
    EXPECT_EQ(prompts.messages()[0].buttons, MessageButtons::YesNo);

    form.pickListLine("listPointIndex", 5);
    queuePick(3);
    prompts.queueAnswer(MessageAnswer::No);
    form.press("cmdAddIndex");

    // A cancelled picker adds nothing.
    form.pickListLine("listPointIndex", 0);
    dialogs.queueDialog({Host::press("mnuCancel")});
    form.press("cmdAddIndex");
    EXPECT_EQ(form.listPointIndex.items.size(), 7u);

    form.press("mnuAccept");
    EXPECT_EQ(face->getIndices(), (Indices{5, 1, 6, 7, 2, 8, 3}));
    EXPECT_EQ(face->NumPts, 7);
}

TEST_F(frmFacePropertyOnACube, ModifyKeepsThePositionAndPreselectsThePoint) {
    open();
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
    form.press("mnuAccept");
    EXPECT_EQ(face->getIndices(), (Indices{5, 6, 1, 8}));
}

TEST_F(frmFacePropertyOnACube, RemoveStopsAtThreeIndices) {
    open();
    form.pickListLine("listPointIndex", 0);
    form.press("cmdRemoveIndex");
    EXPECT_TRUE(prompts.messages().empty());
    form.pickListLine("listPointIndex", 0);
    form.press("cmdRemoveIndex");
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text, "Cannot delete point index reference.  A face cannot "
                                          "have less than 3 points after deletion.");
    EXPECT_EQ(prompts.messages()[0].title, "Cannot delete");
    EXPECT_EQ(prompts.messages()[0].icon, MessageIcon::Information);
    EXPECT_EQ(form.listPointIndex.items.size(), 3u);
    form.press("mnuAccept");
    EXPECT_EQ(face->getIndices(), (Indices{6, 7, 8}));
}

TEST(frmPointIndexSelect, ListsThePointsAndWantsALineToSelect) {
    ScriptedPrompts prompts;
    frmPointIndexSelect picker;
    picker.initialize(makeCube()->getPoints(), 9); // beyond the list: nothing preselected
    ASSERT_EQ(picker.List1.items.size(), 8u);
    EXPECT_EQ(picker.List1.items[1], "Point 2: X:1, Y:-1,Z:-1");
    EXPECT_EQ(picker.List1.ListIndex, -1);
    picker.press("mnuSelect");
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text, "Please select a point index or press cancel.");
    EXPECT_EQ(prompts.messages()[0].title, "Unable to select");
    EXPECT_FALSE(picker.isClosed());
    EXPECT_TRUE(picker.hasCanceled());

    picker.pickListLine("List1", 1);
    picker.press("mnuSelect");
    EXPECT_TRUE(picker.isClosed());
    EXPECT_FALSE(picker.hasCanceled());
    EXPECT_EQ(picker.getSelectedIndex(), 2);
    EXPECT_EQ(picker.getSelectedPoint()->toString(), "X:1, Y:-1,Z:-1");
}
