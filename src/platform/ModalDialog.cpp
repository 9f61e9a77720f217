#include "platform/ModalDialog.h"

#include <stdexcept>

template <class State> State& ModalDialog::find(const std::string& name, const char* kind) {
    const auto it = controls_.find(name);
    if (it == controls_.end() || !std::holds_alternative<State*>(it->second.state)) {
        throw std::invalid_argument(caption() + " has no " + kind + " named " + name);
    }
    return *std::get<State*>(it->second.state);
}

void ModalDialog::handle(const std::string& name) {
    if (const auto& handler = controls_.at(name).handler) {
        handler();
    }
}

void ModalDialog::typeText(const std::string& name, const std::string& text) {
    find<TextBoxState>(name, "text box").Text = text;
    handle(name);
}

void ModalDialog::setChecked(const std::string& name, bool value) {
    find<CheckBoxState>(name, "check box").Value = value;
    handle(name);
}

void ModalDialog::chooseOption(const std::string& name) {
    find<OptionState>(name, "option").Value = true;
    handle(name);
}

void ModalDialog::pickListLine(const std::string& name, int ListIndex) {
    ListState& list = find<ListState>(name, "list");
    if (ListIndex < -1 || ListIndex >= static_cast<int>(list.items.size())) {
        throw std::invalid_argument(name + " has no line " + std::to_string(ListIndex));
    }
    list.ListIndex = ListIndex;
    handle(name);
}

void ModalDialog::moveScrollBar(const std::string& name, int value) {
    ScrollBarState& bar = find<ScrollBarState>(name, "scroll bar");
    bar.Value = bar.clamped(value);
    handle(name);
}

void ModalDialog::press(const std::string& name) {
    find<ButtonState>(name, "button");
    handle(name);
}
