#include "modelling/frmWorkPlaneParametric.h"
#include "modelling/frmWorkPlaneProperty.h"

#include "scene/WorkPlane.h"
#include "support/ScriptedChoosers.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace {

using User = ScriptedModalHost;

struct Fields {
    const char* size;
    const char* xRotation;
    const char* yRotation;
    const char* offset;
};

void typeFields(ModalDialog& dialog, const Fields& fields) {
    dialog.typeText("Text1", fields.size);
    dialog.typeText("Text2", fields.xRotation);
    dialog.typeText("Text3", fields.yRotation);
    dialog.typeText("Text5", fields.offset);
}

} // namespace

TEST(frmWorkPlaneParametric, TheFirstFailingFieldIsReportedEmptiedAndFocused) {
    struct Case {
        Fields fields;
        TextBoxState frmWorkPlaneParametric::*failing;
        const char* message;
    };
    const Case cases[] = {
        {{"0", "0", "0", "0"},
         &frmWorkPlaneParametric::Text1,
         "Invalid Workplane Size.  Value must be numeric and greater than 0."},
        {{"-3", "", "", ""},
         &frmWorkPlaneParametric::Text1,
         "Invalid Workplane Size.  Value must be numeric and greater than 0."},
        {{"abc", "0", "0", "0"},
         &frmWorkPlaneParametric::Text1,
         "Invalid Workplane Size.  Value must be numeric and greater than 0."},
        {{"10", "", "x", "x"},
         &frmWorkPlaneParametric::Text2,
         "Invalid X Rotation.  Value must be numeric."},
        {{"10", "0", "1,5", "x"},
         &frmWorkPlaneParametric::Text3,
         "Invalid Y Rotation.  Value must be numeric."},
        {{"10", "0", "0", "1e"},
         &frmWorkPlaneParametric::Text5,
         "Invalid Offset.  Value must be numeric."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.message);
        ScriptedPrompts prompts;
        ScriptedColorChooser colors;
        frmWorkPlaneParametric dialog(colors);
        typeFields(dialog, c.fields);
        dialog.press("mnuAccept");

        ASSERT_EQ(prompts.messages().size(), 1u);
        EXPECT_EQ(prompts.messages()[0].text, c.message);
        EXPECT_EQ(prompts.messages()[0].title, "Parametric Workplane Creation");
        EXPECT_EQ(prompts.messages()[0].icon, MessageIcon::Information);
        EXPECT_EQ(prompts.messages()[0].buttons, MessageButtons::Ok);
        const std::pair<const TextBoxState*, const char*> fields[] = {
            {&dialog.Text1, c.fields.size},
            {&dialog.Text2, c.fields.xRotation},
            {&dialog.Text3, c.fields.yRotation},
            {&dialog.Text5, c.fields.offset}};
        for (const auto& [field, typed] : fields) {
            const bool isFailing = field == &(dialog.*c.failing);
            EXPECT_EQ(field->Focused, isFailing) << typed;
            EXPECT_EQ(field->Text, isFailing ? "" : typed);
        }
        EXPECT_FALSE(dialog.isClosed());
        EXPECT_FALSE(dialog.hasCreated());
        EXPECT_EQ(dialog.getWorkPlane(), nullptr);
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
    EXPECT_EQ(dialog.picWPColor.BackColor, 0x0A78C8);
    EXPECT_TRUE(dialog.hasCreated());
    const auto workPlane = dialog.getWorkPlane();
    ASSERT_NE(workPlane, nullptr);
    EXPECT_EQ(workPlane->getSize(), 10.0f);
    EXPECT_EQ(workPlane->getXRotation(), 1.5708f); // radians, a quarter turn
    EXPECT_EQ(workPlane->getYRotation(), 0.5f);
    EXPECT_EQ(workPlane->getOffset(), -2.0f);
    EXPECT_EQ(workPlane->getColor(), 0x0A78C8);
    EXPECT_TRUE(workPlane->isVisible());

    frmWorkPlaneParametric cancelled(colors);
    host.queueDialog({User::type("Text1", "10"), User::type("Text2", "0"), User::type("Text3", "0"),
                      User::type("Text5", "0"), User::press("mnuCancel")});
    host.showModal(cancelled);
    EXPECT_FALSE(cancelled.hasCreated());
    EXPECT_EQ(cancelled.getWorkPlane(), nullptr);

    // Without a chosen colour the plane still shows on the black viewports.
    frmWorkPlaneParametric uncoloured(colors);
    host.queueDialog({User::type("Text1", "10"), User::type("Text2", "0"), User::type("Text3", "0"),
                      User::type("Text5", "0"), User::press("mnuAccept")});
    host.showModal(uncoloured);
    ASSERT_TRUE(uncoloured.hasCreated());
    EXPECT_NE(uncoloured.getWorkPlane()->getColor(), 0);
}

TEST(frmWorkPlaneProperty, AcceptRebuildsAndSetsVisibilityCancelChangesNothing) {
    ScriptedPrompts prompts;
    ScriptedColorChooser colors;
    ScriptedModalHost host;
    const auto workPlane = std::make_shared<WorkPlane>();
    workPlane->initialize(10, 0.5f, -1.25f, 2, 0x123456);

    frmWorkPlaneProperty shown(colors);
    shown.initialize(workPlane);
    EXPECT_EQ(shown.Text1.Text, "10");
    EXPECT_EQ(shown.Text2.Text, "0.5");
    EXPECT_EQ(shown.Text3.Text, "-1.25");
    EXPECT_EQ(shown.Text5.Text, "2");
    EXPECT_EQ(shown.picWPColor.BackColor, 0x123456);
    EXPECT_TRUE(shown.chkVisible.Value);

    // Cancel after edits leaves the plane as it was.
    const auto solid = workPlane->getSolid();
    colors.queueAnswer(0x00FF00);
    host.queueDialog({User::type("Text1", "4"), User::press("Command1"),
                      User::check("chkVisible", false), User::press("mnuCancel")});
    host.showModal(shown);
    EXPECT_EQ(workPlane->getSize(), 10.0f);
    EXPECT_EQ(workPlane->getColor(), 0x123456);
    EXPECT_TRUE(workPlane->isVisible());
    EXPECT_EQ(workPlane->getSolid(), solid);

    // A failed check changes nothing either, and reports under the creation title.
    frmWorkPlaneProperty failing(colors);
    failing.initialize(workPlane);
    failing.typeText("Text3", "");
    failing.press("mnuAccept");
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].title, "Parametric Workplane Creation");
    EXPECT_EQ(workPlane->getSolid(), solid);

    // Clearing Visible hides the plane, and its geometry is rebuilt though no number changed.
    frmWorkPlaneProperty accepted(colors);
    accepted.initialize(workPlane);
    host.queueDialog({User::check("chkVisible", false), User::press("mnuAccept")});
    host.showModal(accepted);
    EXPECT_FALSE(workPlane->isVisible());
    EXPECT_NE(workPlane->getSolid(), solid);
    EXPECT_EQ(workPlane->getSize(), 10.0f);
    EXPECT_EQ(workPlane->getYRotation(), -1.25f);
}
