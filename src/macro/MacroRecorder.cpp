#include "macro/MacroRecorder.h"

#include "app/frmTolvane.h"
#include "macro/MacroWriter.h"
#include "macro/MessageText.h"

#include <system_error>

void MacroRecorder::attach(frmTolvane& form, WindowFrame& frame, FileChooser& files,
                           ColorChooser& colors, Prompts& prompts) {
    form_ = &form;
    files_ = &files;
    colors_ = &colors;
    prompts_ = &prompts;
    form.attachFrame(frame, *this, *this);
    form.setUserEventListener(this);
    installPrompts(this);
}

void MacroRecorder::record(const MacroAction& action) {
    if (stopped_) {
        return;
    }
    try {
        writer_.write(action);
    } catch (const std::system_error& error) {
        stopped_ = true;
        prompts_->messageBox("The macro cannot be written (" + MessageText::reason(error.code()) +
                                 "); recording has stopped.",
                             "Korvan", MessageIcon::Critical, MessageButtons::Ok);
    }
}

void MacroRecorder::clientResized(int width, int height) {
    record(macro::Resize{width, height});
}

void MacroRecorder::menuChosen(const MenuItem& item) {
    const MainMenu& menus = form_->getMenus();
    record(macro::Menu{menus.isInPopup(item), menus.pathOf(item)});
}

void MacroRecorder::keyPressed(int keyCode) {
    record(macro::Key{keyCode});
}

void MacroRecorder::mousePressed(int viewport, int button, int shift, float x, float y) {
    record(macro::Mouse{true, viewport, button, shift, x, y});
}

void MacroRecorder::mouseMoved(int viewport, int button, int shift, float x, float y) {
    record(macro::Mouse{false, viewport, button, shift, x, y});
}

void MacroRecorder::treeNodeClicked(const SceneTreeNode& node) {
    macro::TreeClick click;
    if (!node.key.empty()) {
        click.key = node.key;
    } else {
        for (const SceneTreeNode* at = &node; at->parent() != nullptr; at = at->parent()) {
            click.textPath.insert(click.textPath.begin(), at->text);
        }
    }
    record(click);
}

void MacroRecorder::treeKeyPressed(int keyCode) {
    record(macro::TreeKey{keyCode});
}

void MacroRecorder::acted(const ModalDialog& dialog, const ControlAction& action) {
    record(macro::Dialog{dialog.caption(), action});
}

void MacroRecorder::showModal(ModalDialog& dialog) {
    dialog.setListener(this);
    dialogs_.showModal(dialog);
}

MessageAnswer MacroRecorder::messageBox(const std::string& text, const std::string& title,
                                        MessageIcon icon, MessageButtons buttons) {
    record(macro::Expect{macro::Expect::Kind::Message, {text}, {}, 0});
    const MessageAnswer answer = prompts_->messageBox(text, title, icon, buttons);
    record(macro::Message{answer});
    return answer;
}

std::optional<std::string> MacroRecorder::inputBox(const std::string& prompt,
                                                   const std::string& title,
                                                   const std::string& defaultText) {
    std::optional<std::string> text = prompts_->inputBox(prompt, title, defaultText);
    record(macro::Input{text});
    return text;
}

std::string MacroRecorder::chooseFile(const std::string& title, const std::string& filter) {
    std::string path = files_->chooseFile(title, filter);
    record(macro::File{path});
    return path;
}

int32_t MacroRecorder::chooseColor() {
    const int32_t color = colors_->chooseColor();
    record(macro::Color{color < 0 ? -1 : color});
    return color;
}
