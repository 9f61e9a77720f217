#include "support/Monkey.h"

#include "app/frmTolvane.h"
#include "platform/Canvas.h"
#include "platform/ModalDialog.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

using Verb = ControlAction::Verb;

// What a user types: mostly sensible numbers, often nonsense.
const std::vector<std::string> sensibleTexts = {"0", "1", "2", "0.5", "-1", "3.75", "10", "1.5"};
const std::vector<std::string> hostileTexts = {"",
                                               "abc",
                                               "1e30",
                                               "-1e30",
                                               "99999999",
                                               "NaN",
                                               "1,5",
                                               " 2 ",
                                               "1e-40",
                                               "0x10",
                                               "--3",
                                               "Rotate(0,0,0.6)",
                                               "Translate(1,2",
                                               "Scale(2,2,2)",
                                               "\"quoted\"\n\t",
                                               std::string(300, '9')};
const std::vector<MessageAnswer> unsavedWorkAnswers = {MessageAnswer::Save, MessageAnswer::Discard,
                                                       MessageAnswer::Cancel};
const std::vector<int> keys = {13, 67, 69, 13, 67, 69, 0, 27, 46, 65, 112};

bool contains(const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
}

// The leaves of the menu under item that a user can choose, by caption path.
void leaves(const MenuItem& item, std::vector<std::vector<std::string>>& found,
            std::vector<std::string> path = {}) {
    for (const auto& child : item.getChildren()) {
        if (child->isSeparator() || !child->isEnabled() || !child->isVisible() ||
            child->getName() == "mnuFileExit") {
            continue;
        }
        path.push_back(child->getCaption());
        if (child->getChildren().empty()) {
            found.push_back(path);
        } else {
            leaves(*child, found, path);
        }
        path.pop_back();
    }
}

// Every node of the tree made so far, with the texts of its path.
void nodes(const SceneTreeNode& node,
           std::vector<std::pair<std::string, std::vector<std::string>>>& found,
           std::vector<std::string> path = {}) {
    for (const auto& child : node.children()) {
        path.push_back(child->text);
        found.emplace_back(child->key, path);
        nodes(*child, found, path);
        path.pop_back();
    }
}

} // namespace

Monkey::Monkey(uint64_t seed, long actions, std::string folder)
    : random_(seed), actionsLeft_(actions), folder_(std::move(folder)) {}

int Monkey::between(int low, int high) {
    const auto span = static_cast<uint64_t>(static_cast<int64_t>(high) - low + 1);
    return static_cast<int>(low + static_cast<int64_t>(random_() % span));
}

std::optional<MacroAction> Monkey::next(const Waiting& waiting) {
    ++count_;
    switch (waiting.kind) {
    case Waiting::Kind::Window:
        if (actionsLeft_ == 0) {
            return std::nullopt;
        }
        --actionsLeft_;
        return windowAction();
    case Waiting::Kind::Dialog:
        return dialogAction(*waiting.dialog);
    case Waiting::Kind::Message:
        switch (waiting.buttons) {
        case MessageButtons::Ok:
            return macro::Message{MessageAnswer::Ok};
        case MessageButtons::SaveDiscardCancel:
            return macro::Message{oneOf(unsavedWorkAnswers)};
        default:
            return macro::Message{chance(50) ? MessageAnswer::Yes : MessageAnswer::No};
        }
    case Waiting::Kind::Input:
        return chance(15) ? macro::Input{std::nullopt}
                          : macro::Input{chance(75) ? oneOf(sensibleTexts) : oneOf(hostileTexts)};
    case Waiting::Kind::File:
        return macro::File{chance(20) ? std::string() : path()};
    case Waiting::Kind::Color:
        return macro::Color{chance(20) ? -1 : between(0, 0xFFFFFF)};
    case Waiting::Kind::Popup:
        return chance(15) ? std::nullopt : menu(form_->getMenus().getPopupMenu(), true);
    }
    return std::nullopt;
}

void Monkey::plan() {
    const SceneDocument& document = form_->getDocument();
    if (document.workPlanes.empty() || chance(25)) {
        planned_.push_back(macro::Menu{false, {"&Create", "&WorkPlane", "&Parameter Creation"}});
        return;
    }
    const Canvas* canvas = form_->getViewports().canvas(3);
    const int width = canvas->scaleWidth();
    const int height = canvas->scaleHeight();
    planned_.push_back(macro::TreeClick{
        "w" + std::to_string(between(1, static_cast<int>(document.workPlanes.size()))), {}});
    planned_.push_back(macro::Menu{false, {"&Create", "&Profile"}});
    for (int corners = between(3, 7); corners > 0; --corners) {
        const float x = static_cast<float>(between(width / 5, width * 4 / 5));
        const float y = static_cast<float>(between(height / 5, height * 4 / 5));
        planned_.push_back(macro::Mouse{false, 3, 0, 0, x, y});
        planned_.push_back(macro::Mouse{true, 3, 1, 0, x, y});
    }
    planned_.push_back(macro::Key{67});
    planned_.push_back(
        macro::TreeClick{"r" + std::to_string(static_cast<int>(document.profiles.size()) + 1), {}});
    planned_.push_back(macro::Menu{false, {"&Create", "&Extrusion"}});
}

MacroAction Monkey::windowAction() {
    // The editor's window has its size before anything else happens.
    if (count_ == 1) {
        return macro::Resize{between(600, 1600), between(400, 1000)};
    }
    if (auto step = undoRun()) {
        return *step;
    }
    if (planned_.empty() && chance(3)) {
        plan();
    }
    if (!planned_.empty()) {
        // A plan goes on only while what it needs is there: a step that no longer fits
        // (the profile was not made, say) ends it.
        MacroAction step = std::move(planned_.front());
        planned_.pop_front();
        const auto* click = std::get_if<macro::TreeClick>(&step);
        const auto* chosen = std::get_if<macro::Menu>(&step);
        const MenuItem* item =
            chosen ? form_->getMenus().getMenuBar().findPath(chosen->path) : nullptr;
        if ((click && !form_->getSceneTree().findSceneNode(click->key)) ||
            (item && !item->isEnabled())) {
            planned_.clear();
        } else {
            return step;
        }
    }
    const int roll = between(1, 100);
    if (roll <= 25) {
        if (auto chosen = menu(form_->getMenus().getMenuBar(), false)) {
            return *chosen;
        }
    } else if (roll <= 37) {
        if (auto click = treeClick()) {
            return *click;
        }
    } else if (roll <= 41) {
        return macro::TreeKey{chance(80) ? 46 : between(0, 255)};
    } else if (roll <= 52) {
        return macro::Key{chance(90) ? oneOf(keys) : between(-5, 300)};
    } else if (roll <= 54) {
        const int width = chance(10) ? between(0, 40) : between(200, 1600);
        return macro::Resize{width, chance(10) ? between(0, 40) : between(150, 1000)};
    }
    return mouse();
}

std::optional<MacroAction> Monkey::undoRun() {
    const UndoHistory& history = form_->history();
    if (undosLeft_ == 0 && redosLeft_ == 0 && planned_.empty() && history.canUndo() && chance(4)) {
        undosLeft_ = chance(40) ? 1000 : between(1, 6);
        redosLeft_ = chance(50) ? 1000 : between(0, 6);
    }
    if (undosLeft_ > 0 && history.canUndo()) {
        --undosLeft_;
        return macro::Menu{false, {"&Edit", "&Undo"}};
    }
    undosLeft_ = 0;
    if (redosLeft_ > 0 && history.canRedo()) {
        --redosLeft_;
        return macro::Menu{false, {"&Edit", "&Redo"}};
    }
    redosLeft_ = 0;
    return std::nullopt;
}

float Monkey::coordinate(int size) {
    const float far[] = {-1e6f, 1e6f, 3e9f, -3e9f, 1e30f, 0.5f};
    const int roll = between(1, 100);
    return roll <= 85   ? static_cast<float>(between(0, std::max(size - 1, 0)))
           : roll <= 97 ? static_cast<float>(between(-60, size + 60))
                        : far[between(0, 5)];
}

MacroAction Monkey::mouse() {
    std::vector<int> shown;
    for (int i = 0; i < 4; ++i) {
        if (const Canvas* canvas = form_->getViewports().canvas(i);
            canvas != nullptr && canvas->isVisible()) {
            shown.push_back(i);
        }
    }
    if (shown.empty()) {
        return macro::Resize{between(200, 1200), between(150, 800)};
    }
    macro::Mouse mouse;
    mouse.viewport = oneOf(shown);
    const Canvas& canvas = *form_->getViewports().canvas(mouse.viewport);
    mouse.press = chance(35);
    if (mouse.press) {
        const int buttons[] = {1, 1, 1, 1, 2, 4, 3, 0};
        mouse.button = buttons[between(0, 7)];
        heldButton_ = mouse.button == 2 ? 0 : mouse.button;
    } else {
        mouse.button = chance(70) ? heldButton_ : 0;
    }
    mouse.shift = chance(80) ? 0 : between(0, 7);
    mouse.x = coordinate(canvas.scaleWidth());
    mouse.y = coordinate(canvas.scaleHeight());
    return mouse;
}

std::optional<MacroAction> Monkey::treeClick() {
    std::vector<std::pair<std::string, std::vector<std::string>>> found;
    nodes(form_->getSceneTree().root(), found);
    if (found.empty()) {
        return std::nullopt;
    }
    const auto& [key, texts] = oneOf(found);
    return !key.empty() && chance(90) ? macro::TreeClick{key, {}} : macro::TreeClick{"", texts};
}

std::optional<MacroAction> Monkey::menu(const MenuItem& root, bool popup) {
    std::vector<std::vector<std::string>> found;
    leaves(root, found);
    if (found.empty()) {
        return std::nullopt;
    }
    return macro::Menu{popup, oneOf(found)};
}

MacroAction Monkey::dialogAction(const ModalDialog& dialog) {
    if (&dialog != dialog_) {
        dialog_ = &dialog;
        dialogActions_ = 0;
        filling_ = chance(50);
    }
    ++dialogActions_;
    if (filling_) {
        return fillIn(dialog);
    }
    std::vector<ModalDialog::ControlInfo> usable;
    std::vector<std::string> buttons;
    std::vector<std::string> cancels;
    for (const auto& control : dialog.controls()) {
        if (!control.enabled) {
            continue;
        }
        usable.push_back(control);
        if (control.verb == Verb::Press) {
            buttons.push_back(control.name);
            if (contains(control.name, "Cancel")) {
                cancels.push_back(control.name);
            }
        }
    }
    const macro::Dialog none{dialog.caption(), {Verb::Press, "", "", 0}};
    // Long enough: a closing button, the cancel when there is one.
    if (!buttons.empty() && (dialogActions_ > 12 || chance(dialogActions_ * 4))) {
        macro::Dialog close = none;
        close.action.control = !cancels.empty() && (dialogActions_ > 40 || chance(60))
                                   ? oneOf(cancels)
                                   : oneOf(buttons);
        return close;
    }
    if (usable.empty()) {
        return none; // nothing a user could do; the player reports it
    }
    const ModalDialog::ControlInfo& control = oneOf(usable);
    macro::Dialog step{dialog.caption(), {control.verb, control.name, "", 0}};
    switch (control.verb) {
    case Verb::Type:
        step.action.text = text(control.name);
        break;
    case Verb::Check:
        step.action.value = between(0, 1);
        break;
    case Verb::Pick:
        step.action.value = between(-1, control.high);
        break;
    case Verb::Scroll:
        step.action.value = chance(90) ? between(control.low, control.high)
                                       : between(control.low - 50, control.high + 50);
        break;
    case Verb::Choose:
    case Verb::Press:
        break;
    }
    return step;
}

std::string Monkey::text(const std::string& control) {
    // Subdivisions make work in proportion: keep them small but for the odd hostile one.
    if (contains(control, "Incr")) {
        return chance(90) ? std::to_string(between(1, 12)) : oneOf(hostileTexts);
    }
    return chance(70) ? oneOf(sensibleTexts) : oneOf(hostileTexts);
}

std::string Monkey::path() {
    // A name too long for any file system is refused alike wherever the macro is replayed.
    const int roll = between(1, 100);
    return folder_ + "/" +
           (roll <= 60   ? "scene" + std::to_string(between(1, 3)) + ".tvm"
            : roll <= 75 ? std::string(300, 'n') + ".tvm"
            : roll <= 90 ? "scene.txt"
                         : "\x01odd name\x7f.tvm");
}

MacroAction Monkey::fillIn(const ModalDialog& dialog) {
    const std::vector<ModalDialog::ControlInfo> controls = dialog.controls();
    int textBox = 0;
    for (const auto& control : controls) {
        if (control.verb == Verb::Type && control.enabled && ++textBox == dialogActions_) {
            const std::vector<std::string> values = {"1", "2", "0.5", "3", "1.5", "0.25"};
            const bool steps = contains(control.name, "Incr");
            return macro::Dialog{dialog.caption(),
                                 {Verb::Type, control.name,
                                  steps ? std::to_string(between(1, 8)) : oneOf(values), 0}};
        }
    }
    // Every box filled: the button that accepts, or failing that any but the cancel.
    std::vector<std::string> accepting;
    std::vector<std::string> others;
    for (const auto& control : controls) {
        const auto named = [&](const char* word) { return contains(control.name, word); };
        if (control.verb == Verb::Press && control.enabled && !named("Cancel")) {
            const bool accepts = std::ranges::any_of(
                std::array{"Accept", "OK", "Extrude", "Confirm", "Select"}, named);
            (accepts ? accepting : others).push_back(control.name);
        }
    }
    filling_ = false; // what follows (a refusal, a nested dialog) is played at random
    const std::vector<std::string>& buttons = accepting.empty() ? others : accepting;
    if (buttons.empty()) {
        return dialogAction(dialog);
    }
    return macro::Dialog{dialog.caption(), {Verb::Press, oneOf(buttons), "", 0}};
}
