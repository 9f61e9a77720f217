#include "macro/MacroPlayer.h"

#include "app/EventGuard.h"
#include "app/frmTolvane.h"
#include "macro/MacroSyntax.h"
#include "macro/MacroWriter.h"
#include "platform/Canvas.h"
#include "platform/ModalDialog.h"

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

MacroAction MacroPlayer::take(const Waiting& waiting, const std::string& what) {
    std::optional<MacroAction> action = source_.next(waiting);
    if (!action) {
        throw EventGuard::Stop{"after " + source_.where() + ": the macro ends while " + what};
    }
    if (echo_ != nullptr) {
        echo_->write(*action);
    }
    ++played_;
    return std::move(*action);
}

bool MacroPlayer::step() {
    std::optional<MacroAction> action = source_.next(Waiting{});
    if (!action) {
        return false;
    }
    if (closed_) {
        throw Error(source_.where() + ": the window has been closed");
    }
    if (echo_ != nullptr) {
        echo_->write(*action);
    }
    ++played_;
    try {
        playWindowAction(*action);
    } catch (const EventGuard::Stop& stopped) {
        throw Error(stopped.message);
    }
    return true;
}

void MacroPlayer::playAll() {
    while (step()) {
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
    const Canvas* canvas = form_->getPicOrtho(mouse.viewport);
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

void MacroPlayer::playTreeClick(const macro::TreeClick& click) {
    SceneTreeModel& tree = form_->getSceneTree();
    std::shared_ptr<SceneTreeNode> node;
    if (!click.key.empty()) {
        node = tree.findSceneNode(click.key);
        if (!node) {
            stop("the scene tree has no node with the key " + click.key);
        }
    } else {
        const SceneTreeNodes* children = &tree.root().children();
        for (const std::string& text : click.textPath) {
            node.reset();
            for (const auto& child : *children) {
                if (child->text == text) {
                    node = child;
                    break;
                }
            }
            if (!node) {
                stop("the scene tree has no node " + pathText(click.textPath));
            }
            if (node->laterChildCount() > 0) {
                tree.makeLaterChildren(*node);
            }
            children = &node->children();
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
    const MessageAnswer answer = expect<macro::Message>(action, what).answer;
    if ((buttons == MessageButtons::Ok) != (answer == MessageAnswer::Ok)) {
        stop(std::string("the message box has ") +
             (buttons == MessageButtons::Ok ? "only OK" : "Yes and No") + ": " + text);
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
    return expect<macro::File>(take({Waiting::Kind::File}, what), what).path;
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
    std::optional<MacroAction> action = source_.next({Waiting::Kind::Popup});
    if (!action) {
        return;
    }
    if (echo_ != nullptr) {
        echo_->write(*action);
    }
    ++played_;
    const auto* menu = std::get_if<macro::Menu>(&*action);
    if (menu == nullptr || !menu->popup) {
        stop(std::visit(Describe{}, *action) + ", but the pop-up menu is open");
    }
    playMenu(*menu);
}

void MacroPlayer::unload() {
    closed_ = true;
    if (shown_ != nullptr) {
        shown_->unload();
    }
}
