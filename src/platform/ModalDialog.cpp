#include "platform/ModalDialog.h"

#include <stdexcept>

namespace {

// The kind of control each verb acts on, as messages name it.
const char* kindName(ControlAction::Verb verb) {
    switch (verb) {
    case ControlAction::Verb::Type:
        return "text box";
    case ControlAction::Verb::Check:
        return "check box";
    case ControlAction::Verb::Choose:
        return "option";
    case ControlAction::Verb::Pick:
        return "list";
    case ControlAction::Verb::Scroll:
        return "scroll bar";
    case ControlAction::Verb::Press:
        return "button";
    }
    return "control";
}

} // namespace

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
    perform({ControlAction::Verb::Type, name, text, 0});
}

void ModalDialog::setChecked(const std::string& name, bool value) {
    perform({ControlAction::Verb::Check, name, {}, value ? 1 : 0});
}

void ModalDialog::chooseOption(const std::string& name) {
    perform({ControlAction::Verb::Choose, name, {}, 0});
}

void ModalDialog::pickListLine(const std::string& name, int ListIndex) {
    perform({ControlAction::Verb::Pick, name, {}, ListIndex});
}

void ModalDialog::moveScrollBar(const std::string& name, int value) {
    perform({ControlAction::Verb::Scroll, name, {}, value});
}

void ModalDialog::press(const std::string& name) {
    perform({ControlAction::Verb::Press, name, {}, 0});
}

void ModalDialog::perform(const ControlAction& action) {
    if (listener_ != nullptr) {
        listener_->acted(*this, action);
    }
    run(action);
}

void ModalDialog::run(const ControlAction& action) {
    const std::string& name = action.control;
    switch (action.verb) {
    case ControlAction::Verb::Type:
        find<TextBoxState>(name, "text box").Text = action.text;
        break;
    case ControlAction::Verb::Check:
        find<CheckBoxState>(name, "check box").Value = action.value != 0;
        break;
    case ControlAction::Verb::Choose:
        find<OptionState>(name, "option").Value = true;
        break;
    case ControlAction::Verb::Pick: {
        ListState& list = find<ListState>(name, "list");
        if (action.value < -1 || action.value >= static_cast<int>(list.items.size())) {
            throw std::invalid_argument(name + " has no line " + std::to_string(action.value));
        }
        list.ListIndex = action.value;
        break;
    }
    case ControlAction::Verb::Scroll: {
        ScrollBarState& bar = find<ScrollBarState>(name, "scroll bar");
        bar.Value = bar.clamped(action.value);
        break;
    }
    case ControlAction::Verb::Press:
        find<ButtonState>(name, "button");
        break;
    }
    handle(name);
}

std::string ModalDialog::refusal(const ControlAction& action) const {
    const std::string noSuch =
        caption() + " has no " + kindName(action.verb) + " named " + action.control;
    const auto it = controls_.find(action.control);
    if (it == controls_.end()) {
        return noSuch;
    }
    for (const ControlInfo& info : controls()) {
        if (info.name != action.control) {
            continue;
        }
        if (info.verb != action.verb) {
            return noSuch;
        }
        if (!info.enabled) {
            return "the " + std::string(kindName(action.verb)) + " " + action.control + " of " +
                   caption() + " is disabled";
        }
        if (action.verb == ControlAction::Verb::Pick &&
            (action.value < -1 || action.value > info.high)) {
            return action.control + " has no line " + std::to_string(action.value);
        }
        return "";
    }
    return noSuch;
}

std::vector<ModalDialog::ControlInfo> ModalDialog::controls() const {
    using Verb = ControlAction::Verb;
    std::vector<ControlInfo> result;
    for (const auto& [name, control] : controls_) {
        const StateRef& state = control.state;
        if (const auto* text = std::get_if<TextBoxState*>(&state)) {
            result.push_back({name, Verb::Type, (*text)->Enabled});
        } else if (const auto* check = std::get_if<CheckBoxState*>(&state)) {
            result.push_back({name, Verb::Check, (*check)->Enabled});
        } else if (std::holds_alternative<OptionState*>(state)) {
            result.push_back({name, Verb::Choose, true});
        } else if (const auto* list = std::get_if<ListState*>(&state)) {
            result.push_back(
                {name, Verb::Pick, true, 0, static_cast<int>((*list)->items.size()) - 1});
        } else if (const auto* bar = std::get_if<ScrollBarState*>(&state)) {
            const ScrollBarState& b = **bar;
            result.push_back(
                {name, Verb::Scroll, b.Enabled, std::min(b.Min, b.Max), std::max(b.Min, b.Max)});
        } else if (const auto* button = std::get_if<ButtonState*>(&state)) {
            result.push_back({name, Verb::Press, (*button)->Enabled});
        }
    }
    return result;
}
