#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

// One item of the window's menus, named after its control (mnuFileNew). Its caption marks
// the access key with "&"; the caption "-" is a separator. An item carries its check mark,
// enabled and visible state, its shortcut keys, the status tip that says what it would do,
// and the items under it, and runs its command when chosen. The Qt view mirrors each item and hears
// of every change.
class MenuItem {
public:
    // fKey 1 to 12 for F1 to F12, 0 for no shortcut.
    MenuItem(std::string name, std::string caption, int fKey = 0);

    const std::string& getName() const { return name; }
    const std::string& getCaption() const { return caption; }
    // For items whose caption follows what they stand for (a recent file).
    void setCaption(const std::string& text);
    bool isSeparator() const { return caption == "-"; }
    // Key sequences in the desktop's portable text ("F1", "Ctrl+Shift+Z"), the first the one
    // the menu shows.
    const std::vector<std::string>& getShortcuts() const { return shortcuts; }
    void setShortcuts(std::vector<std::string> keys) { shortcuts = std::move(keys); }
    const std::string& getStatusTip() const { return statusTip; }
    void setStatusTip(const std::string& tip);
    bool isChecked() const { return checked; }
    void setChecked(bool value);
    bool isEnabled() const { return enabled; }
    void setEnabled(bool value);
    bool isVisible() const { return visible; }
    void setVisible(bool value);

    // Appends an item and returns it.
    MenuItem& add(const std::string& itemName, const std::string& itemCaption, int itemFKey = 0);
    const std::vector<std::unique_ptr<MenuItem>>& getChildren() const { return children; }
    // The item with this control name here or anywhere below, or nullptr.
    MenuItem* find(const std::string& itemName);
    // The item reached from here by its captions, one per level ({"&File", "&New"}), or
    // nullptr; the path a recorded command is replayed by.
    MenuItem* findPath(const std::vector<std::string>& captions);

    void setCommand(std::function<void()> command) { onClick = std::move(command); }
    // The user chose the item: an enabled item runs its command.
    void click();
    void setListener(std::function<void(const MenuItem&)> listener) {
        onChange = std::move(listener);
    }

private:
    void changed();

    std::string name;
    std::string caption;
    std::vector<std::string> shortcuts;
    std::string statusTip;
    bool checked = false;
    bool enabled = true;
    bool visible = true;
    std::vector<std::unique_ptr<MenuItem>> children;
    std::function<void()> onClick;
    std::function<void(const MenuItem&)> onChange;
};
