#include "macro/MacroPlayer.h"

#include "app/EventGuard.h"
#include "app/frmTolvane.h"
#include "macro/MacroSyntax.h"
#include "macro/MacroWriter.h"
#include "platform/Canvas.h"
#include "platform/ModalDialog.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"

namespace {

std::string pathText(const std::vector<std::string>& path) {
    std::string text;
    for (const std::string& caption : path) {
        text += (text.empty() ? "" : " > ") + caption;
    }
    return text;
}

// What a line holds, in a few words, for the message that it came out of turn.
struct Describe {
    std::string operator()(const macro::Dialog& a) const {
        return "an action in the dialog \"" + a.caption + "\"";
    }
    std::string operator()(const macro::Message&) const { return "a message box's answer"; }
    std::string operator()(const macro::Input&) const { return "an input box's answer"; }
    std::string operator()(const macro::File&) const { return "a file dialog's choice"; }
    std::string operator()(const macro::Color&) const { return "a colour dialog's choice"; }
    std::string operator()(const macro::Menu& a) const {
        return a.popup ? "a pop-up menu item" : "a menu item";
    }
    template <class Other> std::string operator()(const Other&) const {
        return "an action of the main window";
    }
};

} // namespace

void MacroPlayer::attach(frmTolvane& form, WindowFrame* shown) {
    form_ = &form;
    shown_ = shown;
    form.attachFrame(*this, *this, *this);
}

void MacroPlayer::stop(const std::string& why) const {
    throw EventGuard::Stop{source_.where() + ": " + why};
}

std::optional<MacroAction> MacroPlayer::next(const Waiting& waiting) {
    while (true) {
        std::optional<MacroAction> action = source_.next(waiting);
        if (!action) {
            return action;
        }
        if (echo_ != nullptr) {
            echo_->write(*action);
        }
        const auto* expect = std::get_if<macro::Expect>(&*action);
        if (expect == nullptr) {
            ++played_;
            return action;
        }
        check(*expect);
    }
}

MacroAction MacroPlayer::take(const Waiting& waiting, const std::string& what) {
    std::optional<MacroAction> action = next(waiting);
    if (!action) {
        throw EventGuard::Stop{"after " + source_.where() + ": the macro ends while " + what};
    }
    return std::move(*action);
}

bool MacroPlayer::step() {
    try {
        checkNoMessageExpected();
        std::optional<MacroAction> action = next(Waiting{});
        if (!action) {
            checkNoMessageExpected();
            return false;
        }
        if (closed_) {
            stop("the window has been closed");
        }
        playWindowAction(*action);
    } catch (const UserSource::Unreadable& unreadable) {
        throw Error(unreadable.message, true);
    } catch (const EventGuard::Stop& stopped) {
        throw Error(stopped.message);
    }
    return true;
}

void MacroPlayer::playAll() {
    while (step()) {
    }
}

void MacroPlayer::checkNoMessageExpected() {
    if (expectedMessage_) {
        throw EventGuard::Stop{expectedWhere_ + ": expected the message \"" + *expectedMessage_ +
                               "\", but no message box came"};
    }
}

void MacroPlayer::check(const macro::Expect& expect) {
    using Kind = macro::Expect::Kind;
    if (expect.kind == Kind::Message) {
        checkNoMessageExpected();
        expectedMessage_ = expect.texts.front();
        expectedWhere_ = source_.where();
        return;
    }
    if (expect.kind == Kind::Tree) {
        if (!findNode(expect.texts)) {
            stop("the scene tree has no node " + pathText(expect.texts));
        }
        return;
    }
    const SceneDocument& document = form_->getDocument();
    const SelectionState& selection = form_->getSelection();
    const bool selected = expect.kind == Kind::Selected;
    size_t found = 0;
    if (expect.items == "solids") {
        found = selected ? selection.selectedSolids.size() : document.solids.size();
    } else if (expect.items == "workplanes") {
        found = selected ? selection.selectedWorkplanes.size() : document.workPlanes.size();
    } else if (expect.items == "profiles") {
        found = selected ? selection.selectedProfiles.size() : document.profiles.size();
    } else if (selected) {
        found = selection.selectedFaces.size();
    } else {
        for (const auto& object : document.solids) {
            if (const std::shared_ptr<Solid3d> solid = object->getSolid()) {
                found += static_cast<size_t>(expect.items == "faces" ? solid->GetFaceNum()
                                                                     : solid->getPointUpperBound());
            }
        }
    }
    if (found != static_cast<size_t>(expect.count)) {
        const std::string items = (selected ? "selected " : "") + expect.items;
        stop("expected " + std::to_string(expect.count) + " " + items + ", found " +
             std::to_string(found));
    }
}

void MacroPlayer::playWindowAction(const MacroAction& action) {
    frmTolvane& form = *form_;
    if (const auto* resize = std::get_if<macro::Resize>(&action)) {
        EventGuard::run([&] {
            if (resizer_) {
                resizer_(resize->width, resize->height);
            } else {
                form.Form_Resize(resize->width, resize->height);
            }
        });
    } else if (const auto* menu = std::get_if<macro::Menu>(&action)) {
        if (menu->popup) {
            stop("no pop-up menu is open");
        }
        playMenu(*menu);
    } else if (const auto* key = std::get_if<macro::Key>(&action)) {
        EventGuard::run([&] { form.Form_KeyDown(key->code); });
    } else if (const auto* mouse = std::get_if<macro::Mouse>(&action)) {
        playMouse(*mouse);
    } else if (const auto* click = std::get_if<macro::TreeClick>(&action)) {
        playTreeClick(*click);
    } else if (const auto* treeKey = std::get_if<macro::TreeKey>(&action)) {
        EventGuard::run([&] { form.TreeView1_KeyDown(treeKey->code); });
    } else {
        stop(std::visit(Describe{}, action) + ", but nothing asks for it");
    }
}

void MacroPlayer::playMenu(const macro::Menu& menu) {
    MenuItem* item =
        menu.popup ? &form_->getMenus().getPopupMenu() : &form_->getMenus().getMenuBar();
    for (const std::string& caption : menu.path) {
        item = item->findPath({caption});
        if (item == nullptr || item->isSeparator()) {
            stop(std::string(menu.popup ? "the pop-up menu" : "the menu bar") + " has no item " +
                 pathText(menu.path));
        }
        if (!item->isEnabled() || !item->isVisible()) {
            stop("the menu item " + pathText(menu.path) + " is " +
                 (item->isEnabled() ? "hidden" : "disabled"));
        }
    }
    if (!item->getChildren().empty()) {
        stop("the menu item " + pathText(menu.path) + " opens a menu; name an item in it");
    }
    EventGuard::run([item] { item->click(); });
}

void MacroPlayer::playMouse(const macro::Mouse& mouse) {
    const Canvas* canvas = form_->getViewports().canvas(mouse.viewport);
    if (canvas == nullptr || !canvas->isVisible()) {
        stop("viewport " + std::to_string(mouse.viewport) + " is not shown");
    }
    EventGuard::run([&] {
        if (mouse.press) {
            form_->picOrtho_MouseDown(mouse.viewport, mouse.button, mouse.shift, mouse.x, mouse.y);
        } else {
            form_->picOrtho_MouseMove(mouse.viewport, mouse.button, mouse.shift, mouse.x, mouse.y);
        }
    });
}

std::shared_ptr<SceneTreeNode>
MacroPlayer::findNode(const std::vector<std::string>& textPath) const {
    SceneTreeModel& tree = form_->getSceneTree();
    std::shared_ptr<SceneTreeNode> node;
    const SceneTreeNodes* children = &tree.root().children();
    for (const std::string& text : textPath) {
        node.reset();
        for (const auto& child : *children) {
            if (child->text == text) {
                node = child;
                break;
            }
        }
        if (!node) {
            return nullptr;
        }
        if (node->laterChildCount() > 0) {
            tree.makeLaterChildren(*node);
        }
        children = &node->children();
    }
    return node;
}

void MacroPlayer::playTreeClick(const macro::TreeClick& click) {
    std::shared_ptr<SceneTreeNode> node;
    if (!click.key.empty()) {
        node = form_->getSceneTree().findSceneNode(click.key);
        if (!node) {
            stop("the scene tree has no node with the key " + click.key);
        }
    } else {
        node = findNode(click.textPath);
        if (!node) {
            stop("the scene tree has no node " + pathText(click.textPath));
        }
    }
    EventGuard::run([&] { form_->TreeView1_NodeClick(*node); });
}

void MacroPlayer::showModal(ModalDialog& dialog) {
    const std::string what = "the dialog \"" + dialog.caption() + "\" is open";
    while (!dialog.isClosed()) {
        const MacroAction action = take({Waiting::Kind::Dialog, &dialog}, what);
        const auto* step = std::get_if<macro::Dialog>(&action);
        if (step == nullptr) {
            stop(std::visit(Describe{}, action) + ", but " + what);
        }
        if (step->caption != dialog.caption()) {
            stop("an action in the dialog \"" + step->caption + "\", but " + what);
        }
        if (const std::string refusal = dialog.refusal(step->action); !refusal.empty()) {
            stop(refusal);
        }
        EventGuard::run([&] { dialog.perform(step->action); });
    }
}

template <class Answer>
const Answer& MacroPlayer::expect(const MacroAction& action, const std::string& what) {
    const auto* answer = std::get_if<Answer>(&action);
    if (answer == nullptr) {
        stop(std::visit(Describe{}, action) + ", but " + what);
    }
    return *answer;
}

MessageAnswer MacroPlayer::messageBox(const std::string& text, const std::string&, MessageIcon,
                                      MessageButtons buttons) {
    const std::string what = "a message box asks: " + text;
    const MacroAction action = take({Waiting::Kind::Message, nullptr, buttons}, what);
    if (expectedMessage_) {
        if (*expectedMessage_ != text) {
            throw EventGuard::Stop{expectedWhere_ + ": expected the message \"" +
                                   *expectedMessage_ + "\", found \"" + text + "\""};
        }
        expectedMessage_.reset();
    }
    const MessageAnswer answer = expect<macro::Message>(action, what).answer;
    if (!offers(buttons, answer)) {
        stop("the message box has no such answer: " + text);
    }
    return answer;
}

std::optional<std::string> MacroPlayer::inputBox(const std::string& prompt, const std::string&,
                                                 const std::string&) {
    const std::string what = "an input box asks: " + prompt;
    return expect<macro::Input>(take({Waiting::Kind::Input}, what), what).text;
}

std::string MacroPlayer::chooseFile(const std::string& title, const std::string&) {
    const std::string what = "the file dialog \"" + title + "\" is open";
    const std::string path = expect<macro::File>(take({Waiting::Kind::File}, what), what).path;
    if (sandbox_.empty() || path.empty()) {
        return path;
    }
    const std::string name = path.substr(path.find_last_of('/') + 1);
    if (name.empty() || name == "." || name == "..") {
        stop("the file " + path + " has no name to find in the sandbox");
    }
    return sandbox_ + "/" + name;
}

int32_t MacroPlayer::chooseColor() {
    const std::string what = "the colour dialog is open";
    return expect<macro::Color>(take({Waiting::Kind::Color}, what), what).color;
}

void MacroPlayer::setMousePointer(MousePointer pointer) {
    if (shown_ != nullptr) {
        shown_->setMousePointer(pointer);
    }
}

void MacroPlayer::showPopupMenu(Canvas&, int, int) {
    std::optional<MacroAction> action = next({Waiting::Kind::Popup});
    if (!action) {
        return;
    }
    const auto* menu = std::get_if<macro::Menu>(&*action);
    if (menu == nullptr || !menu->popup) {
        stop(std::visit(Describe{}, *action) + ", but the pop-up menu is open");
    }
    playMenu(*menu);
}

void MacroPlayer::setTitle(const std::string& title, bool modified) {
    if (shown_ != nullptr) {
        shown_->setTitle(title, modified);
    }
}

void MacroPlayer::showStatus(const std::string& text) {
    if (shown_ != nullptr) {
        shown_->showStatus(text);
    }
}

void MacroPlayer::showModeHint(const std::string& text) {
    if (shown_ != nullptr) {
        shown_->showModeHint(text);
    }
}

void MacroPlayer::unload() {
    closed_ = true;
    if (shown_ != nullptr) {
        shown_->unload();
    }
}
