#pragma once

#include <functional>
#include <string>
#include <vector>

class FileSystem;
class MainMenu;
class SettingsStore;

// File > "Open &Recent": the last files opened, imported or saved, most recent first, each
// once by its canonical path, at most ten. The list lives in the settings whether or not the
// user has the other settings remembered, as every editor keeps its recent files. Choosing
// an entry opens it the way File > Open would; a file that is gone is taken off the list with
// a message instead. Entries read from the settings are taken only when they are absolute
// paths of printable characters.
class RecentFiles {
public:
    static constexpr size_t limit = 10;

    // open opens a chosen entry; the menu's items run the entries from now on.
    RecentFiles(SettingsStore& store, FileSystem& files, MainMenu& menus,
                std::function<void(const std::string&)> open);

    const std::vector<std::string>& paths() const { return paths_; }
    // The file just used goes to the top; one whose path cannot be resolved is left out.
    void add(const std::string& path);
    void choose(size_t index);
    void clear();

private:
    void remember();
    void showInMenu();

    SettingsStore& store_;
    FileSystem& files_;
    MainMenu& menus_;
    std::function<void(const std::string&)> open_;
    std::vector<std::string> paths_;
};
