#include "modelling/frmWorkPlaneParametric.h"
#include "modelling/frmWorkPlaneProperty.h"

#include "scene/WorkPlane.h"
#include "support/ScriptedChoosers.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace {

using User = ScriptedModalHost;

const char* const boxes[] = {"Text1", "Text2", "Text3", "Text5"};

} // namespace

TEST(frmWorkPlaneParametric, TheFirstFailingFieldIsReportedEmptiedAndFocused) {
    const std::string size = "Invalid Workplane Size.  Value must be numeric and greater than 0.";
    const std::tuple<std::array<const char*, 4>, int, std::string> rows[] = {
        {{"0", "0", "0", "0"}, 0, size},
        {{"-3", "", "", ""}, 0, size},
        {{"10", "", "x", "x"}, 1, "Invalid X Rotation.  Value must be numeric."},
        {{"10", "0", "1,5", "x"}, 2, "Invalid Y Rotation.  Value must be numeric."},
        {{"10", "0", "0", "1e"}, 3, "Invalid Offset.  Value must be numeric."},
    };
    for (const auto& [typed, failing, message] : rows) {
        SCOPED_TRACE(message + " for " + typed[0]);
        ScriptedPrompts prompts;
        ScriptedColorChooser colors;
        frmWorkPlaneParametric dialog(colors);
        for (size_t i = 0; i < 4; ++i) {
            dialog.typeText(boxes[i], typed[i]);
        }
        dialog.press("mnuAccept");
        ASSERT_EQ(prompts.messages().size(), 1u);
        EXPECT_EQ(prompts.messages()[0].text, message);
        EXPECT_EQ(prompts.messages()[0].title, "Parametric Workplane Creation");
        EXPECT_EQ(prompts.messages()[0].icon, MessageIcon::Information);
        const TextBoxState* fields[] = {&dialog.Text1, &dialog.Text2, &dialog.Text3, &dialog.Text5};
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(fields[i]->Focused, i == failing) << boxes[i];
            EXPECT_EQ(fields[i]->Text, i == failing ? "" : typed[static_cast<size_t>(i)])
                << boxes[i];
        }
        EXPECT_FALSE(dialog.isClosed());
        EXPECT_FALSE(dialog.hasCreated());
    }
}

TEST(frmWorkPlaneParametric, AcceptCreatesTheWorkplaneCancelDoesNot) {
    ScriptedPrompts prompts;
    ScriptedColorChooser colors;
    ScriptedModalHost host;
    colors.queueAnswer(0x0A78C8); // then the chooser is cancelled: the swatch keeps it
    frmWorkPlaneParametric dialog(colors);
    host.queueDialog({User::type("Text1", " 10 "), User::type("Text2", "1.5708"),
                      User::type("Text3", "+.5"), User::type("Text5", "-2"),
                      User::press("Command1"), User::press("Command1"), User::press("mnuAccept")});
    host.showModal(dialog);
    EXPECT_TRUE(prompts.messages().empty());
    const auto workPlane = dialog.getWorkPlane();
    ASSERT_NE(workPlane, nullptr);
    EXPECT_EQ(workPlane->getSize(), 10.0f);
    EXPECT_EQ(workPlane->getXRotation(), 1.5708f); // radians, a quarter turn
    EXPECT_EQ(workPlane->getYRotation(), 0.5f);
    EXPECT_EQ(workPlane->getOffset(), -2.0f);
    EXPECT_EQ(workPlane->getColor(), 0x0A78C8);

    frmWorkPlaneParametric cancelled(colors);
    host.queueDialog({User::type("Text1", "10"), User::press("mnuCancel")});
    host.showModal(cancelled);
    EXPECT_FALSE(cancelled.hasCreated());
    EXPECT_EQ(cancelled.getWorkPlane(), nullptr);
    EXPECT_NE(cancelled.picWPColor.BackColor, 0); // a black plane would not show
}

TEST(frmWorkPlaneProperty, AcceptRebuildsAndSetsVisibilityCancelOrAFailedCheckChangeNothing) {
    ScriptedPrompts prompts;
    ScriptedColorChooser colors;
    ScriptedModalHost host;
    const auto workPlane = std::make_shared<WorkPlane>();
    workPlane->initialize(10, 0.5f, -1.25f, 2, 0x123456);
    const auto solid = workPlane->getSolid();
    colors.queueAnswer(0x00FF00);
    const std::vector<User::Step> unchanging[] = {
        {User::type("Text1", "4"), User::press("Command1"), User::check("chkVisible", false),
         User::press("mnuCancel")},
        {User::type("Text3", ""), User::press("mnuAccept"), User::press("mnuCancel")}};
    for (const auto& steps : unchanging) {
        frmWorkPlaneProperty dialog(colors);
        dialog.initialize(workPlane);
        EXPECT_EQ(
            std::tie(dialog.Text1.Text, dialog.Text2.Text, dialog.Text3.Text, dialog.Text5.Text),
            std::tuple("10", "0.5", "-1.25", "2"));
        EXPECT_EQ(dialog.picWPColor.BackColor, 0x123456);
        EXPECT_TRUE(dialog.chkVisible.Value);
        host.queueDialog(steps);
        host.showModal(dialog);
        EXPECT_EQ(workPlane->getSolid(), solid);
        EXPECT_TRUE(workPlane->isVisible());
    }
    ASSERT_EQ(prompts.messages().size(), 1u); // the failed check, under the creation title
    EXPECT_EQ(prompts.messages()[0].title, "Parametric Workplane Creation");

    // Clearing Visible hides the plane, and its geometry is rebuilt though no number changed.
    frmWorkPlaneProperty accepted(colors);
    accepted.initialize(workPlane);
    host.queueDialog({User::check("chkVisible", false), User::press("mnuAccept")});
    host.showModal(accepted);
    EXPECT_FALSE(workPlane->isVisible());
    EXPECT_NE(workPlane->getSolid(), solid);
    EXPECT_EQ(workPlane->getYRotation(), -1.25f);
}
