#include "app/frmMouseSensivity.h"

#include "app/MouseSensivityTarget.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace {

struct Target : MouseSensivityTarget {
    float Sensivity = 0.0025f;
    void setMouseSensivity(float value) override { Sensivity = value; }
};

} // namespace

TEST(frmMouseSensivity, ShowsTheSensitivityAsReciprocalAndPercentage) {
    frmMouseSensivity dialog;
    EXPECT_EQ(dialog.caption(), "Set Mouse Sensivity");
    EXPECT_EQ(dialog.lblSens.Caption, "Sensivity:");

    dialog.setSensivityDisplayValue(0.0025f);
    EXPECT_EQ(dialog.HScroll1.Value, 400);
    EXPECT_EQ(dialog.lblSens.Caption, "Sensivity: 60%");
    dialog.moveScrollBar("HScroll1", 1);
    EXPECT_EQ(dialog.lblSens.Caption, "Sensivity: 99.9%");

    // The left end is where a new bar's thumb already stands; the label shows it all the same.
    frmMouseSensivity dull;
    dull.setSensivityDisplayValue(0.001f);
    EXPECT_EQ(dull.HScroll1.Value, 1000);
    EXPECT_EQ(dull.lblSens.Caption, "Sensivity: 0%");

    // Halves go to even; what the bar cannot show goes to its nearer end.
    dialog.setSensivityDisplayValue(1 / 2.5f);
    EXPECT_EQ(dialog.HScroll1.Value, 2);
    dialog.setSensivityDisplayValue(0.0003f);
    EXPECT_EQ(dialog.HScroll1.Value, 1000);
    dialog.setSensivityDisplayValue(0.0f);
    EXPECT_EQ(dialog.HScroll1.Value, 1000);
    dialog.setSensivityDisplayValue(5.0f);
    EXPECT_EQ(dialog.HScroll1.Value, 1);
}

TEST(frmMouseSensivity, AcceptSetsTheTargetsSensitivityCancelDoesNot) {
    ScriptedPrompts prompts;
    ScriptedModalHost host;
    Target target;
    for (const auto& [value, expected] : {std::pair{1, 1.0f}, std::pair{1000, 0.001f}}) {
        frmMouseSensivity dialog;
        dialog.setCallBackForm(&target);
        host.queueDialog(
            {ScriptedModalHost::scroll("HScroll1", value), ScriptedModalHost::press("mnuAccept")});
        host.showModal(dialog);
        EXPECT_EQ(target.Sensivity, expected);
    }

    frmMouseSensivity cancelled;
    cancelled.setCallBackForm(&target);
    host.queueDialog(
        {ScriptedModalHost::scroll("HScroll1", 400), ScriptedModalHost::press("mnuCancel")});
    host.showModal(cancelled);
    EXPECT_EQ(target.Sensivity, 0.001f);
    EXPECT_TRUE(prompts.messages().empty());
}

TEST(frmMouseSensivity, AcceptWithoutCallbackFormSaysSoAndCloses) {
    ScriptedPrompts prompts;
    frmMouseSensivity dialog;
    dialog.setSensivityDisplayValue(0.0025f);
    dialog.mnuAccept_Click();
    EXPECT_TRUE(dialog.isClosed());
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text, "Unable to callback Form to set the Mouse Sensivity!");
    EXPECT_EQ(prompts.messages()[0].title, "Error Passing Mouse Sensivity Message");
    EXPECT_EQ(prompts.messages()[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(prompts.messages()[0].buttons, MessageButtons::Ok);
}
