#include "modelling/frmOrientation.h"

#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace {

using User = ScriptedModalHost;

COrientation guess(int32_t code) {
    COrientation orientation;
    orientation.setOrientation(code);
    return orientation;
}

} // namespace

// The guess is shown with its option ticked; the user's last choice is confirmed, and
// Confirm without a choice asks for one and leaves the dialog open. Cancel confirms nothing.
TEST(frmOrientation, ShowsTheGuessAndConfirmsTheLastChoice) {
    // The guess, its caption, the user's steps, whether confirmed and the orientation then.
    const std::tuple<int32_t, const char*, std::vector<User::Step>, bool, int32_t> rows[] = {
        {-1,
         "Unknown",
         {User::choose("optCW"), User::choose("optCCW"), User::press("mnuConfirm")},
         true,
         2},
        {1, "Clockwise", {User::press("mnuCancel")}, false, -1},
        {2, "Counter-Clockwise", {User::choose("optCW"), User::press("mnuConfirm")}, true, 1},
        {2, "Counter-Clockwise", {User::press("mnuConfirm")}, true, 2},
        {-1, "Unknown", {User::press("mnuConfirm"), User::press("mnuCancel")}, false, -1},
    };
    ScriptedPrompts prompts;
    for (const auto& [code, caption, steps, confirmed, orientation] : rows) {
        SCOPED_TRACE(caption);
        ScriptedModalHost host;
        frmOrientation dialog;
        dialog.initialize(guess(code));
        EXPECT_EQ(dialog.lblGuessOrientation.Caption, caption);
        EXPECT_EQ(dialog.optCW.Value, code == 1);
        EXPECT_EQ(dialog.optCCW.Value, code == 2);
        host.queueDialog(steps);
        host.showModal(dialog);
        EXPECT_EQ(dialog.hasConfirmed(), confirmed);
        EXPECT_EQ(dialog.getOrientation().getOrientation(), orientation);
    }
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text, "Please select a profile orientation.");
    EXPECT_EQ(prompts.messages()[0].title, "No selected orientation");
}
