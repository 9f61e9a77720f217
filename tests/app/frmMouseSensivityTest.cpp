#include "app/frmMouseSensivity.h"

#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

TEST(frmMouseSensivity, ShowsTheSensitivityAsReciprocalAndPercentageAcceptSaysWhenItCannotSetIt) {
    // Halves go to even; what the bar cannot show goes to its nearer end. The left end is
    // where a new bar's thumb already stands; the label shows it all the same.
    const std::tuple<float, int, const char*> cases[] = {
        {0.0025f, 400, "Sensivity: 60%"},  {0.001f, 1000, "Sensivity: 0%"},
        {1 / 2.5f, 2, "Sensivity: 99.8%"}, {0.0003f, 1000, "Sensivity: 0%"},
        {0.0f, 1000, "Sensivity: 0%"},     {5.0f, 1, "Sensivity: 99.9%"}};
    for (const auto& [sensitivity, value, label] : cases) {
        SCOPED_TRACE(sensitivity);
        frmMouseSensivity dialog;
        dialog.setSensivityDisplayValue(sensitivity);
        EXPECT_EQ(dialog.HScroll1.Value, value);
        EXPECT_EQ(dialog.lblSens.Caption, label);
    }

    // Accept and Cancel with a window to call back are the main window's tests; without
    // one, Accept says so and closes all the same.
    ScriptedPrompts prompts;
    frmMouseSensivity alone;
    alone.mnuAccept_Click();
    EXPECT_TRUE(alone.isClosed());
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text, "Unable to callback Form to set the Mouse Sensivity!");
    EXPECT_EQ(prompts.messages()[0].icon, MessageIcon::Exclamation);
}
