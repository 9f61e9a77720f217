#include "macro/MacroRecorder.h"

#include "app/frmTolvane.h"
#include "macro/MacroWriter.h"

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

void MacroRecorder::clientResized(int width, int height) {
    writer_.write(macro::Resize{width, height});
}

void MacroRecorder::menuChosen(const MenuItem& item) {
    const MainMenu& menus = form_->getMenus();
    writer_.write(macro::Menu{menus.isInPopup(item), menus.pathOf(item)});
}

void MacroRecorder::keyPressed(int keyCode) {
    writer_.write(macro::Key{keyCode});
}

void MacroRecorder::mousePressed(int viewport, int button, int shift, float x, float y) {
    writer_.write(macro::Mouse{true, viewport, button, shift, x, y});
}

void MacroRecorder::mouseMoved(int viewport, int button, int shift, float x, float y) {
    writer_.write(macro::Mouse{false, viewport, button, shift, x, y});
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
    writer_.write(click);
}

void MacroRecorder::treeKeyPressed(int keyCode) {
    writer_.write(macro::TreeKey{keyCode});
}

void MacroRecorder::acted(const ModalDialog& dialog, const ControlAction& action) {
    writer_.write(macro::Dialog{dialog.caption(), action});
}

void MacroRecorder::showModal(ModalDialog& dialog) {
    dialog.setListener(this);
    dialogs_.showModal(dialog);
}

MessageAnswer MacroRecorder::messageBox(const std::string& text, const std::string& title,
                                        MessageIcon icon, MessageButtons buttons) {
    const MessageAnswer answer = prompts_->messageBox(text, title, icon, buttons);
    writer_.write(macro::Message{answer});
    return answer;
}

std::optional<std::string> MacroRecorder::inputBox(const std::string& prompt,
                                                   const std::string& title,
                                                   const std::string& defaultText) {
    std::optional<std::string> text = prompts_->inputBox(prompt, title, defaultText);
    writer_.write(macro::Input{text});
    return text;
}

std::string MacroRecorder::chooseFile(const std::string& title, const std::string& filter) {
    std::string path = files_->chooseFile(title, filter);
    writer_.write(macro::File{path});
    return path;
}

int32_t MacroRecorder::chooseColor() {
    const int32_t color = colors_->chooseColor();
    writer_.write(macro::Color{color < 0 ? -1 : color});
    return color;
}
