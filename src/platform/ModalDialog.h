#pragma once

#include "platform/Controls.h"

#include <functional>
#include <map>
#include <string>
#include <variant>

// The logic of a dialog that is shown modally. Its controls are fields of the derived
// class, registered here under their own names (txtLength, cmdAccept, HScroll1), so that
// whoever plays the user (the view, a test, a recorded macro) acts on a control by name
// and runs the same event handler.
class ModalDialog {
public:
    ModalDialog() = default;
    // The registry points into the derived object, so a copy would act on the original.
    ModalDialog(const ModalDialog&) = delete;
    ModalDialog& operator=(const ModalDialog&) = delete;
    virtual ~ModalDialog() = default;

    virtual std::string caption() const = 0;

    // What the user does; each runs the control's handler. A name that is not a control of
    // that kind throws std::invalid_argument.
    void typeText(const std::string& name, const std::string& text);
    void setChecked(const std::string& name, bool value);
    void chooseOption(const std::string& name);
    void pickListLine(const std::string& name, int ListIndex);
    void moveScrollBar(const std::string& name, int value);
    void press(const std::string& name);

    // True once the dialog has ended; the host then stops showing it.
    bool isClosed() const { return closed_; }

protected:
    template <class State>
    void addControl(const std::string& name, State& state, std::function<void()> handler = {}) {
        controls_[name] = Control{&state, std::move(handler)};
    }
    void close() { closed_ = true; }

private:
    using StateRef = std::variant<TextBoxState*, CheckBoxState*, OptionState*, ListState*,
                                  ScrollBarState*, SwatchState*, LabelState*, ButtonState*>;
    struct Control {
        StateRef state;
        std::function<void()> handler;
    };

    template <class State> State& find(const std::string& name, const char* kind);
    void handle(const std::string& name);

    std::map<std::string, Control> controls_;
    bool closed_ = false;
};
