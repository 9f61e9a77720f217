#include "app/MenuItem.h"

#include <string>

MenuItem::MenuItem(std::string name_, std::string caption_, int fKey_)
    : name(std::move(name_)), caption(std::move(caption_)) {
    if (fKey_ > 0) {
        shortcuts.push_back("F" + std::to_string(fKey_));
    }
}

void MenuItem::setStatusTip(const std::string& tip) {
    if (statusTip != tip) {
        statusTip = tip;
        changed();
    }
}

void MenuItem::setCaption(const std::string& text) {
    if (caption != text) {
        caption = text;
        changed();
    }
}

void MenuItem::setChecked(bool value) {
    if (checked != value) {
        checked = value;
        changed();
    }
}

void MenuItem::setEnabled(bool value) {
    if (enabled != value) {
        enabled = value;
        changed();
    }
}

void MenuItem::setVisible(bool value) {
    if (visible != value) {
        visible = value;
        changed();
    }
}

MenuItem& MenuItem::add(const std::string& itemName, const std::string& itemCaption, int itemFKey) {
    children.push_back(std::make_unique<MenuItem>(itemName, itemCaption, itemFKey));
    return *children.back();
}

MenuItem* MenuItem::find(const std::string& itemName) {
    if (name == itemName) {
        return this;
    }
    for (const auto& child : children) {
        if (MenuItem* found = child->find(itemName)) {
            return found;
        }
    }
    return nullptr;
}

MenuItem* MenuItem::findPath(const std::vector<std::string>& captions) {
    MenuItem* item = this;
    for (const std::string& wanted : captions) {
        MenuItem* next = nullptr;
        for (const auto& child : item->children) {
            if (child->caption == wanted) {
                next = child.get();
                break;
            }
        }
        if (next == nullptr) {
            return nullptr;
        }
        item = next;
    }
    return item;
}

void MenuItem::click() {
    if (enabled && onClick) {
        onClick();
    }
}

void MenuItem::changed() {
    if (onChange) {
        onChange(*this);
    }
}
