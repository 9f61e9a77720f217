#include "platform/ModalDialog.h"

#include "support/ScriptedModalHost.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

// A dialog with one control of each kind a user changes; its handlers log what ran.
class TestDialog : public ModalDialog {
public:
    TextBoxState txtLength;
    ListState List1{{"a", "b", "c"}};
    ScrollBarState HScroll1{10, 1, 10};
    ButtonState cmdAccept{"&Accept"};
    std::vector<std::string> handled;

    TestDialog() {
        addControl("txtLength", txtLength, [this] { handled.push_back("txtLength"); });
        addControl("List1", List1, [this] { handled.push_back("List1"); });
        addControl("HScroll1", HScroll1, [this] { handled.push_back("HScroll1"); });
        addControl("cmdAccept", cmdAccept, [this] { close(); });
    }
    std::string caption() const override { return "Test"; }
};

} // namespace

TEST(ModalDialog, TheScriptedUserActsOnControlsByNameAndWrongNamesFailLoudly) {
    using User = ScriptedModalHost;
    ScriptedModalHost host;
    TestDialog dialog;
    EXPECT_THROW(dialog.typeText("txtWidth", "1"), std::invalid_argument);
    EXPECT_THROW(dialog.press("txtLength"), std::invalid_argument); // not a button
    EXPECT_THROW(dialog.pickListLine("List1", 3), std::invalid_argument);
    host.queueDialog({User::type("txtLength", "1")}); // ends without closing the dialog
    EXPECT_THROW(host.showModal(dialog), std::logic_error);

    host.queueDialog({User::type("txtLength", "2.5"), User::pick("List1", 2),
                      User::scroll("HScroll1", 50), User::press("cmdAccept")});
    host.showModal(dialog);
    EXPECT_EQ(dialog.txtLength.Text, "2.5");
    EXPECT_EQ(dialog.List1.ListIndex, 2);
    EXPECT_EQ(dialog.HScroll1.Value, 10); // the bar's nearer end
    EXPECT_EQ(dialog.handled,
              (std::vector<std::string>{"txtLength", "txtLength", "List1", "HScroll1"}));
    EXPECT_TRUE(dialog.isClosed());
}
