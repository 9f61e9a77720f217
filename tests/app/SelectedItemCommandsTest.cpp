#include "app/SelectedItemCommands.h"

#include "geometry/ArithmeticError.h"
#include "support/TestSolids.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

using Host = ScriptedModalHost;

TEST(SelectedItemCommands, ExtrudeMakesASolidOfEverySelectedProfileUntilOneFails) {
    TestWindow w;
    w.choose({"&Create", "&Extrusion"});
    ASSERT_EQ(w.prompts.messages().size(), 1u); // its text: the macro player's tests
    EXPECT_TRUE(w.dialogs.shown().empty());

    w.form.getSelection().setSelectedProfiles(
        {makeDiamondProfile(), makeDiamondProfile(), makeDiamondProfile()});
    w.dialogs.queueDialog({Host::press("mnuExtrude")});
    w.dialogs.queueDialog({Host::press("mnuCancel")});
    w.dialogs.queueDialog({Host::type("txtExtrusionLength", "2"), Host::press("mnuExtrude")});
    w.form.Form_KeyDown(69);
    EXPECT_EQ(w.dialogs.shown().size(), 3u);
    ASSERT_EQ(w.form.getDocument().solids.size(), 2u);
    // Both solids are one step.
    w.choose({"&Edit", "&Undo"});
    EXPECT_TRUE(w.form.getDocument().solids.empty());
    w.choose({"&Edit", "&Redo"});

    // An error while extruding ends the command, keeping the earlier solids.
    w.form.getSelection().setSelectedProfiles(
        {makeDiamondProfile(), makeDiamondProfile(), makeDiamondProfile()});
    w.dialogs.queueDialog({Host::press("mnuExtrude")});
    w.dialogs.queueDialog({[](ModalDialog&) { throw ArithmeticError("overflow"); }});
    w.popup(3, {"&Extrude"});
    EXPECT_EQ(w.dialogs.shown().size(), 5u); // the third profile is not offered
    EXPECT_EQ(w.form.getDocument().solids.size(), 3u);
    ASSERT_EQ(w.prompts.messages().size(), 2u);
    EXPECT_EQ(w.prompts.messages()[1].text,
              "Profile is of un-extrudable shape.  Please redraw or alter profile.");
    w.choose({"&Edit", "&Undo"}); // the solid made before the error is a step
    EXPECT_EQ(w.form.getDocument().solids.size(), 2u);
}

TEST(SelectedItemCommands, PropertiesOpenFacesSolidsWorkplanesProfilesThenRedraw) {
    TestWindow w;
    const auto object = makeObject(makeCube(0.5f));
    const auto workPlane = makeWorkPlane(3, 0, 0);
    const auto profile = makeDiamondProfile();
    w.form.getDocument().solids.push_back(object);
    w.form.getDocument().workPlanes.push_back(workPlane);
    w.form.getDocument().profiles.push_back(profile);
    // Set in the reverse of the order the dialogs open in.
    w.form.getSelection().setSelectedProfiles({profile});
    w.form.getSelection().setSelectedWorkplanes({workPlane});
    w.form.getSelection().setSelectedSolids({object});
    w.form.getSelection().setSelectedFaces({object->getFaces().front()});
    for (int i = 0; i < 3; ++i) {
        w.dialogs.queueDialog({Host::press("mnuCancel")});
    }
    w.dialogs.queueDialog(
        {[&w](ModalDialog&) { w.canvases[3].forget(); }, Host::press("mnuCancel")});
    w.choose({"&Selectors", "&Property <enter>"}); // still disabled: nothing opens
    w.form.picOrtho_MouseMove(3, 0, 0, 5, 5);      // events bring the menus up to date
    w.choose({"&Selectors", "&Property <enter>"});
    EXPECT_EQ(w.dialogs.shown(),
              (std::vector<std::string>{"Face Properties", "Solid Properties",
                                        "Workplane Properties", "Profile Properties"}));
    EXPECT_FALSE(w.canvases[3].calls().empty()); // redrawn after the last dialog
    EXPECT_FALSE(w.form.history().canUndo());    // nothing changed

    // One step for every dialog that changed something, named after the dialog.
    const auto face = object->getFaces().front();
    const float specular = face->SpecularK;
    w.dialogs.queueDialog({Host::scroll("HScrollSpecK", 10), Host::press("mnuAccept")});
    for (int i = 0; i < 3; ++i) {
        w.dialogs.queueDialog({Host::press("mnuCancel")});
    }
    w.form.Form_KeyDown(13);
    EXPECT_EQ(w.form.history().undoName(), "Face Properties");
    w.choose({"&Edit", "&Undo"});
    EXPECT_EQ(face->SpecularK, specular);
    EXPECT_FALSE(w.form.history().canUndo());

    // Switch Orientation alone is a change.
    w.dialogs.queueDialog({Host::press("mnuCancel")});
    w.dialogs.queueDialog({Host::check("OrientSwitch", true), Host::press("mnuAccept")});
    for (int i = 0; i < 2; ++i) {
        w.dialogs.queueDialog({Host::press("mnuCancel")});
    }
    w.form.Form_KeyDown(13);
    EXPECT_EQ(w.form.history().undoName(), "Solid Properties");
}
