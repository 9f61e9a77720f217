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

TEST(frmOrientation, ShowsTheGuessWithItsOption) {
    frmOrientation unknown;
    unknown.initialize(guess(-1));
    EXPECT_EQ(unknown.lblGuessOrientation.Caption, "Unknown");
    EXPECT_FALSE(unknown.optCW.Value);
    EXPECT_FALSE(unknown.optCCW.Value);

    frmOrientation clockwise;
    clockwise.initialize(guess(1));
    EXPECT_EQ(clockwise.lblGuessOrientation.Caption, "Clockwise");
    EXPECT_TRUE(clockwise.optCW.Value);
    EXPECT_FALSE(clockwise.optCCW.Value);

    frmOrientation counter;
    counter.initialize(guess(2));
    EXPECT_EQ(counter.lblGuessOrientation.Caption, "Counter-Clockwise");
    EXPECT_FALSE(counter.optCW.Value);
    EXPECT_TRUE(counter.optCCW.Value);

    // A code that is no orientation leaves the last guess shown.
    counter.initialize(guess(0));
    EXPECT_EQ(counter.lblGuessOrientation.Caption, "Counter-Clockwise");
    EXPECT_TRUE(counter.optCCW.Value);
}

TEST(frmOrientation, ConfirmNeedsAChoice) {
    ScriptedPrompts prompts;
    ScriptedModalHost host;
    frmOrientation dialog;
    dialog.initialize(guess(-1));
    dialog.press("mnuConfirm");
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text, "Please select a profile orientation.");
    EXPECT_EQ(prompts.messages()[0].title, "No selected orientation");
    EXPECT_EQ(prompts.messages()[0].icon, MessageIcon::Information);
    EXPECT_FALSE(dialog.isClosed());
    EXPECT_FALSE(dialog.hasConfirmed());

    // Choosing one option clears the other; the last choice counts.
    host.queueDialog({User::choose("optCW"), User::choose("optCCW"), User::press("mnuConfirm")});
    host.showModal(dialog);
    EXPECT_TRUE(dialog.hasConfirmed());
    EXPECT_FALSE(dialog.optCW.Value);
    EXPECT_EQ(dialog.getOrientation().getOrientation(), 2);

    frmOrientation clockwise;
    clockwise.initialize(guess(2));
    host.queueDialog({User::choose("optCW"), User::press("mnuConfirm")});
    host.showModal(clockwise);
    EXPECT_FALSE(clockwise.optCCW.Value);
    EXPECT_EQ(clockwise.getOrientation().getOrientation(), 1);
}

TEST(frmOrientation, CancelIsNoConfirmation) {
    ScriptedModalHost host;
    frmOrientation dialog;
    dialog.initialize(guess(1));
    host.queueDialog({User::press("mnuCancel")});
    host.showModal(dialog);
    EXPECT_FALSE(dialog.hasConfirmed());
    EXPECT_EQ(dialog.getOrientation().getOrientation(), -1);
}
