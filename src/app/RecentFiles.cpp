#include "app/RecentFiles.h"

#include "app/MainMenu.h"
#include "platform/FileSystem.h"
#include "platform/Prompts.h"
#include "platform/SettingsStore.h"

#include <algorithm>

namespace {

std::string key(size_t index) {
    return "RecentFiles/" + std::to_string(index + 1);
}

bool acceptable(const std::string& path) {
    return path.size() > 1 && path.front() == '/' &&
           std::all_of(path.begin(), path.end(),
                       [](char c) { return static_cast<unsigned char>(c) >= ' ' && c != 127; });
}

// "&1 /home/ann/scene.tvm": the number is the access key, an "&" of the path stays one.
std::string caption(size_t index, const std::string& path) {
    std::string shown;
    for (const char c : path) {
        shown += c == '&' ? std::string("&&") : std::string(1, c);
    }
    const std::string number = std::to_string(index + 1);
    return number.substr(0, number.size() - 1) + "&" + number.back() + " " + shown;
}

} // namespace

RecentFiles::RecentFiles(SettingsStore& store, FileSystem& files, MainMenu& menus,
                         std::function<void(const std::string&)> open)
    : store_(store), files_(files), menus_(menus), open_(std::move(open)) {
    for (size_t i = 0; i < limit; ++i) {
        const auto path = store_.getString(key(i));
        if (path && acceptable(*path) &&
            std::find(paths_.begin(), paths_.end(), *path) == paths_.end()) {
            paths_.push_back(*path);
        }
    }
    for (size_t i = 0; i < limit; ++i) {
        menus_.item("mnuRecentFile" + std::to_string(i + 1)).setCommand([this, i] { choose(i); });
    }
    menus_.item("mnuRecentClear").setCommand([this] { clear(); });
    showInMenu();
}

void RecentFiles::add(const std::string& path) {
    std::string canonical;
    if (files_.resolve(path, canonical) || !acceptable(canonical)) {
        return;
    }
    std::erase(paths_, canonical);
    paths_.insert(paths_.begin(), canonical);
    if (paths_.size() > limit) {
        paths_.resize(limit);
    }
    remember();
}

void RecentFiles::choose(size_t index) {
    if (index >= paths_.size()) {
        return;
    }
    const std::string path = paths_[index];
    FileSystem::Status status;
    if (files_.status(path, status) || status.kind != FileSystem::Kind::Regular) {
        paths_.erase(paths_.begin() + static_cast<std::ptrdiff_t>(index));
        remember();
        showMessage(path + " no longer exists; it has been taken off the recent files.",
                    "Open Recent", MessageIcon::Exclamation);
        return;
    }
    open_(path);
}

void RecentFiles::clear() {
    paths_.clear();
    remember();
}

void RecentFiles::remember() {
    for (size_t i = 0; i < limit; ++i) {
        if (i < paths_.size()) {
            store_.setString(key(i), paths_[i]);
        } else {
            store_.remove(key(i));
        }
    }
    showInMenu();
}

void RecentFiles::showInMenu() {
    for (size_t i = 0; i < limit; ++i) {
        MenuItem& item = menus_.item("mnuRecentFile" + std::to_string(i + 1));
        item.setVisible(i < paths_.size());
        item.setCaption(i < paths_.size() ? caption(i, paths_[i]) : "");
    }
    menus_.item("mnuRecentClear").setEnabled(!paths_.empty());
}
