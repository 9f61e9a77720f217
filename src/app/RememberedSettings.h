#pragma once

#include <optional>

class MainMenu;
class MouseDispatch;
class SettingsStore;
class ViewportSet;

// Where the window stood and how large it was, as the desktop gave it.
struct WindowGeometry {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

// Options > "&Remember Settings": off by default, and itself always remembered. While it is
// on, the window's place and size, the viewport layout, each viewport's projection and
// display switches, the View menu's check marks and the mouse sensitivity are written when
// the program ends and restored when it starts; while it is off the program starts as it
// always has. Each value read is checked for its type and range, and one that fails keeps its
// start-up value alone.
class RememberedSettings {
public:
    // Binds the menu item to its check mark, which it writes at once.
    RememberedSettings(SettingsStore& store, MainMenu& menus, ViewportSet& viewports,
                       MouseDispatch& mouse);

    // At start, before the first layout: the check mark, and when it is on, the remembered
    // state; the window's geometry is returned for the window to take.
    std::optional<WindowGeometry> restore();
    // At the end: the state of now, when the item is checked.
    void save(const WindowGeometry& window);

private:
    SettingsStore& store_;
    MainMenu& menus_;
    ViewportSet& viewports_;
    MouseDispatch& mouse_;
};
