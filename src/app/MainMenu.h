#pragma once

#include "app/MenuItem.h"

#include <functional>
#include <string>
#include <vector>

// The main window's menus: the bar, whose hidden "-view popup-" menu is the pop-up shown by
// a right press on a viewport, with the captions, shortcuts and check marks they start
// with. The commands are bound by the window.
class MainMenu {
public:
    MainMenu();

    // The bar: its children are the top-level menus.
    MenuItem& getMenuBar() { return bar; }
    // The pop-up menu's items are this item's children.
    MenuItem& getPopupMenu() { return *popup; }
    // The item with this control name; names are fixed, so an unknown one is a fault.
    MenuItem& item(const std::string& name);
    // Makes the item run command, then what runs after every command.
    void bind(const std::string& name, std::function<void()> command);
    void setAfterCommand(std::function<void()> after) { afterCommand = std::move(after); }
    // Told of every bound item chosen, before its command runs.
    void setChoiceListener(std::function<void(const MenuItem&)> listener) {
        choiceListener = std::move(listener);
    }

    // The captions leading to the item: from the pop-up menu when the item is in it, else
    // from the bar. Empty for an item of neither.
    std::vector<std::string> pathOf(const MenuItem& item) const;
    bool isInPopup(const MenuItem& item) const;

private:
    MenuItem bar{"mnuBar", ""};
    MenuItem* popup = nullptr;
    std::function<void()> afterCommand;
    std::function<void(const MenuItem&)> choiceListener;
};
