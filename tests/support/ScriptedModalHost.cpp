#include "support/ScriptedModalHost.h"

#include "platform/ModalDialog.h"

#include <stdexcept>

ScriptedModalHost::Step ScriptedModalHost::type(const std::string& textBox,
                                                const std::string& text) {
    return [=](ModalDialog& dialog) { dialog.typeText(textBox, text); };
}

ScriptedModalHost::Step ScriptedModalHost::check(const std::string& checkBox, bool value) {
    return [=](ModalDialog& dialog) { dialog.setChecked(checkBox, value); };
}

ScriptedModalHost::Step ScriptedModalHost::choose(const std::string& option) {
    return [=](ModalDialog& dialog) { dialog.chooseOption(option); };
}

ScriptedModalHost::Step ScriptedModalHost::pick(const std::string& list, int ListIndex) {
    return [=](ModalDialog& dialog) { dialog.pickListLine(list, ListIndex); };
}

ScriptedModalHost::Step ScriptedModalHost::scroll(const std::string& scrollBar, int value) {
    return [=](ModalDialog& dialog) { dialog.moveScrollBar(scrollBar, value); };
}

ScriptedModalHost::Step ScriptedModalHost::press(const std::string& button) {
    return [=](ModalDialog& dialog) { dialog.press(button); };
}

void ScriptedModalHost::showModal(ModalDialog& dialog) {
    // As in the editor: a dialog that closed while it was set up is not shown.
    if (dialog.isClosed()) {
        return;
    }
    shown_.push_back(dialog.caption());
    for (const Step& step : scripts_.take({})) {
        if (dialog.isClosed()) {
            throw std::logic_error(dialog.caption() + " closed before the script ended");
        }
        step(dialog);
    }
    if (!dialog.isClosed()) {
        throw std::logic_error(dialog.caption() + " is still open when the script ends");
    }
}
