#include "macro/MacroRecorder.h"
#include "macro/HeadlessEditor.h"
#include "macro/MacroFile.h"
#include "macro/MacroWriter.h"
#include "render/BlankCanvas.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>
#include <sstream>

// What a user does through every channel (menus, dialogs, a nested message box, the tree,
// keys, the mouse, the pop-up menu, the file dialog) is written so that a replay ends in
// the same document, selection and view.
TEST(MacroRecorder, WritesWhatAReplayPlaysBackToTheSameState) {
    std::ostringstream text;
    MacroWriter writer(text);
    using Host = ScriptedModalHost;
    TestWindow w;
    MacroRecorder recorder(writer, w.dialogs);
    frmTolvane form(recorder);
    std::array<BlankCanvas, 4> canvases;
    form.attachCanvases({&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
    recorder.attach(form, w.frame, w.files, w.colors, w.prompts);
    form.Form_Load();
    form.Form_Resize(900, 500);

    // A refused size first: the dialog's message box is answered inside the dialog.
    w.dialogs.queueDialog({Host::type("Text1", "x"), Host::type("Text2", "0"),
                           Host::type("Text3", "0"), Host::type("Text5", "0"),
                           Host::press("mnuAccept"), Host::type("Text1", "3"),
                           Host::press("mnuAccept")});
    form.getMenus()
        .getMenuBar()
        .findPath({"&Create", "&WorkPlane", "&Parameter Creation"})
        ->click();
    form.TreeView1_NodeClick(*form.getSceneTree().findSceneNode("w1"));
    w.dialogs.queueDialog({Host::press("mnuCancel")});
    form.Form_KeyDown(13);
    form.picOrtho_MouseDown(3, 1, 0, 300, 200);
    form.picOrtho_MouseMove(3, 1, 1, 310.5f, 190);
    w.frame.queuePopupChoice([&] {
        form.getMenus().getPopupMenu().findPath({"&Display", "&WireFrame"})->click();
    });
    form.picOrtho_MouseDown(3, 2, 0, 10, 10);
    w.files.queueAnswer("");
    form.getMenus().getMenuBar().findPath({"&File", "&Open"})->click();
    form.TreeView1_KeyDown(frmTolvane::keyCodeDelete);

    MacroFile macro(text.str());
    std::array<BlankCanvas, 4> replayCanvases;
    HeadlessEditor replay(
        macro, {&replayCanvases[0], &replayCanvases[1], &replayCanvases[2], &replayCanvases[3]});
    replay.player.playAll();
    EXPECT_EQ(replay.form.getDocument().workPlanes.size(), 0u);
    EXPECT_TRUE(replay.form.getViewports().viewSpecs(4).wireFrame);
    // The drag turned the view and left the mouse's anchor where it ended.
    EXPECT_EQ(replay.form.getViewports().viewSpecs(4), form.getViewports().viewSpecs(4));
    EXPECT_EQ(replay.player.played(), 20);
    // The refused size's message is checked as it is replayed.
    EXPECT_NE(text.str().find("expect message \"Invalid"), std::string::npos);

    // A line that can no longer be written (a full disk) is said once; the editor goes on.
    const size_t messages = w.prompts.messages().size();
    text.setstate(std::ios::badbit);
    form.Form_Resize(700, 500);
    form.Form_Resize(800, 500);
    ASSERT_EQ(w.prompts.messages().size(), messages + 1);
    EXPECT_EQ(w.prompts.messages().back().text,
              "The macro cannot be written (input/output error); recording has stopped.");
    EXPECT_EQ(form.getViewports().getTreePlacement().width, 160);
}
