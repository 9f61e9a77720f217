#include "app/frmMouseSensivity.h"

#include "app/frmTolvane.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

TEST(frmMouseSensivity, ShowsTheSensitivityAsReciprocalAndPercentage) {
    frmMouseSensivity dialog;
    EXPECT_EQ(dialog.caption(), "Set Mouse Sensivity");
    EXPECT_EQ(dialog.HScroll1.Min, 1000);
    EXPECT_EQ(dialog.HScroll1.Max, 1);
    EXPECT_EQ(dialog.lblSens.Caption, "Sensivity:");

    dialog.setSensivityDisplayValue(0.0025f);
    EXPECT_EQ(dialog.HScroll1.Value, 400);
    EXPECT_EQ(dialog.lblSens.Caption, "Sensivity: 60%");

    dialog.HScroll1.Value = 1;
    dialog.HScroll1_Change();
    EXPECT_EQ(dialog.lblSens.Caption, "Sensivity: 99.9%");
    dialog.HScroll1.Value = 1000;
    dialog.HScroll1_Change();
    EXPECT_EQ(dialog.lblSens.Caption, "Sensivity: 0%");

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

TEST(frmMouseSensivity, AcceptSetsTheMainWindowsSensitivityCancelDoesNot) {
    ScriptedPrompts prompts;
    frmTolvane main;
    for (const auto& [value, expected] : {std::pair{1, 1.0f}, std::pair{1000, 0.001f}}) {
        frmMouseSensivity dialog;
        dialog.setSensivityDisplayValue(main.getMouseSensivity());
        dialog.setCallBackForm(&main);
        dialog.HScroll1.Value = value;
        dialog.mnuAccept_Click();
        EXPECT_TRUE(dialog.isClosed());
        EXPECT_EQ(main.getMouseSensivity(), expected);
    }

    frmMouseSensivity cancelled;
    cancelled.setSensivityDisplayValue(main.getMouseSensivity());
    cancelled.setCallBackForm(&main);
    cancelled.HScroll1.Value = 400;
    cancelled.mnuCancel_Click();
    EXPECT_TRUE(cancelled.isClosed());
    EXPECT_EQ(main.getMouseSensivity(), 0.001f);
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
