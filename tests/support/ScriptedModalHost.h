#pragma once

#include "platform/ModalDialog.h"
#include "platform/ModalHost.h"
#include "support/AnswerQueue.h"

#include <functional>
#include <string>
#include <vector>

// A modal host in which a test plays the user: for each dialog to be shown it queues the
// steps the user takes inside it, naming the controls. Showing a dialog runs the next
// script; a dialog still open when its script ends throws std::logic_error, since a real
// modal dialog would wait for ever. A dialog already closed is not shown.
class ScriptedModalHost : public ModalHost {
public:
    using Step = std::function<void(ModalDialog&)>;

    static Step type(const std::string& textBox, const std::string& text) {
        return [=](ModalDialog& dialog) { dialog.typeText(textBox, text); };
    }
    static Step check(const std::string& checkBox, bool value) {
        return [=](ModalDialog& dialog) { dialog.setChecked(checkBox, value); };
    }
    static Step choose(const std::string& option) {
        return [=](ModalDialog& dialog) { dialog.chooseOption(option); };
    }
    static Step pick(const std::string& list, int ListIndex) {
        return [=](ModalDialog& dialog) { dialog.pickListLine(list, ListIndex); };
    }
    static Step scroll(const std::string& scrollBar, int value) {
        return [=](ModalDialog& dialog) { dialog.moveScrollBar(scrollBar, value); };
    }
    static Step press(const std::string& button) {
        return [=](ModalDialog& dialog) { dialog.press(button); };
    }

    void queueDialog(std::vector<Step> steps) { scripts_.push(std::move(steps)); }
    // The captions of the dialogs shown, in order.
    const std::vector<std::string>& shown() const { return shown_; }

    void showModal(ModalDialog& dialog) override;

private:
    AnswerQueue<std::vector<Step>> scripts_;
    std::vector<std::string> shown_;
};
