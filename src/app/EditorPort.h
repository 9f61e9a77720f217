#pragma once

#include <cstdint>
#include <memory>
#include <string>

class ClickHandleNothing;
class UndoHistory;
struct ViewportScene;

// What the command groups may ask of the editor that runs them: pictures and layout drawn
// again, the tree made anew, the mouse mode switched or read, and the viewport last
// right-clicked, the undo history and the status line. Everything else they work on (document,
// selection, tree, viewports) they are given directly, so that no command group depends on the main
// window.
class EditorPort {
public:
    virtual ~EditorPort() = default;
    // The main window's caption, the title of the questions that concern the whole document.
    virtual std::string caption() const = 0;
    virtual void redrawAllViewports() = 0;
    // What the viewports draw: the document with the display switches of the menus.
    virtual ViewportScene viewportScene() = 0;
    // Lays the viewports out for the current layout and size, then redraws.
    virtual void layoutViewports() = 0;
    // The tree anew from the document, the selected items' nodes painted.
    virtual void rebuildTree() = 0;
    virtual void setMouseMode(std::unique_ptr<ClickHandleNothing> mode) = 0;
    virtual ClickHandleNothing& getMouseMode() const = 0;
    // The viewport number (1 to 4) of the last right press, 0 before the first.
    virtual int32_t getPopupViewport() const = 0;
    // Every change of the document becomes a step of this history.
    virtual UndoHistory& history() = 0;
    // A one-line result of a command for the user; nothing before the window is attached.
    virtual void showStatus(const std::string& text) = 0;
    // The pointer's model coordinates on the workplane while a profile is drawn, empty when
    // there are none to show.
    virtual void showPointerPosition(const std::string& position) = 0;
    // A file just opened, imported or saved, for the recent files.
    virtual void fileUsed(const std::string& path) = 0;
};
