#pragma once

#include "platform/Controls.h"

#include <functional>
#include <map>
#include <string>
#include <variant>
#include <vector>

class ModalDialog;

// One thing a user does to a control of a dialog, named by the control's own name.
struct ControlAction {
    enum class Verb { Type, Check, Choose, Pick, Scroll, Press };

    Verb verb = Verb::Press;
    std::string control;
    std::string text; // what Type types
    int value = 0;    // Check: 1 checked, 0 not; Pick: the line; Scroll: the value
};

// Hears every action on a dialog before it runs: a macro recorder is one.
class ControlActionListener {
public:
    virtual ~ControlActionListener() = default;
    virtual void acted(const ModalDialog& dialog, const ControlAction& action) = 0;
};

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
    // Any of the above, told to the listener first.
    void perform(const ControlAction& action);

    // Why a user could not do this here (no such control of that kind, a disabled one, a
    // list line that is not there), or "" when they could.
    std::string refusal(const ControlAction& action) const;

    // The controls a user can act on, by name, with the verb that acts on each: what a
    // program playing the user may choose from.
    struct ControlInfo {
        std::string name;
        ControlAction::Verb verb;
        bool enabled;
        int low = 0;  // Pick: 0; Scroll: the lower end
        int high = 0; // Pick: the last line; Scroll: the upper end
    };
    std::vector<ControlInfo> controls() const;

    // The one told of each action from now on, or nullptr.
    void setListener(ControlActionListener* listener) { listener_ = listener; }

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
    void run(const ControlAction& action);

    std::map<std::string, Control> controls_;
    ControlActionListener* listener_ = nullptr;
    bool closed_ = false;
};
