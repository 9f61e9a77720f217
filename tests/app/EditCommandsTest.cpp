#include "app/EditCommands.h"

#include "support/TempFolder.h"
#include "support/TestSolids.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

namespace {

const std::vector<std::string> undo = {"&Edit", "&Undo"};
const std::vector<std::string> redo = {"&Edit", "&Redo"};

// A window whose document holds two solids with their nodes, the first deleted from the tree.
struct AfterDelete : TestWindow {
    std::vector<std::shared_ptr<Transformed3d>> solids{makeObject(), makeObject()};

    AfterDelete() {
        form.getDocument().solids = solids;
        form.TreeView1_KeyDown('A'); // the tree from the document
        form.TreeView1_NodeClick(*form.getSceneTree().findSceneNode("s1"));
        form.TreeView1_KeyDown(frmTolvane::keyCodeDelete);
    }
    MenuItem& item(const char* name) { return form.getMenus().item(name); }
};

} // namespace

TEST(EditCommands, UndoAndRedoTakeAStepBackAndForthNamingIt) {
    AfterDelete w;
    EXPECT_TRUE(w.item("mnuEditUndo").isEnabled());
    EXPECT_EQ(w.item("mnuEditUndo").getStatusTip(), "Undo Delete Solid 1");
    EXPECT_EQ(w.frame.title(), "Untitled[*] - Korvan Version 2.0");
    EXPECT_TRUE(w.frame.modified());

    w.choose(undo);
    EXPECT_FALSE(w.solids[0]->isSelected()); // forgotten when it left, not selected on return
    EXPECT_EQ(w.frame.status(), "Undid Delete Solid 1");
    EXPECT_FALSE(w.frame.modified());
    EXPECT_FALSE(w.item("mnuEditUndo").isEnabled());
    EXPECT_EQ(w.item("mnuEditRedo").getStatusTip(), "Redo Delete Solid 1");

    w.choose(redo); // what it does to the solids: the monkey's
    EXPECT_EQ(w.frame.status(), "Redid Delete Solid 1");
    EXPECT_EQ(w.item("mnuEditRedo").getStatusTip(), "Nothing to redo");
}

TEST(EditCommands, UnsavedChangesAreSavedOrDiscardedFirstOrTheCommandStops) {
    AfterDelete w;
    TempFolder folder;
    w.form.getMenus().item("mnuFileExit").click(); // unanswered: Cancel
    ASSERT_EQ(w.prompts.messages().size(), 1u);
    EXPECT_EQ(w.prompts.messages()[0].buttons, MessageButtons::SaveDiscardCancel);
    EXPECT_EQ(w.frame.unloads(), 0);
    w.choose({"&File", "&New"}); // a cancelled save stops New before its own question
    w.prompts.queueAnswer(MessageAnswer::Save);
    EXPECT_FALSE(w.form.Form_QueryUnload());
    EXPECT_EQ(w.prompts.messages().size(), 3u);
    EXPECT_EQ(w.form.getDocument().solids.size(), 1u);

    // Saved, the document is clean until it changes.
    w.prompts.queueAnswer(MessageAnswer::Save);
    w.files.queueAnswer(folder.file("scene"));
    w.choose({"&File", "&Open"}); // saved, then the open dialog is cancelled
    EXPECT_EQ(w.files.requests()[0].title, "Save File");
    EXPECT_EQ(w.frame.title(), "scene.tvm[*] - Korvan Version 2.0");
    EXPECT_FALSE(w.frame.modified());
    EXPECT_TRUE(w.form.Form_QueryUnload());
    w.choose(undo);
    w.prompts.queueAnswer(MessageAnswer::Discard);
    w.form.getMenus().item("mnuFileExit").click();
    EXPECT_EQ(w.frame.unloads(), 1);
    EXPECT_EQ(w.prompts.messages().back().text, "Save changes to scene.tvm?");
}
