#pragma once

#include "app/EditorPort.h"
#include "app/FileCommands.h"
#include "app/ImageCommands.h"
#include "app/MainMenu.h"
#include "app/MeshCommands.h"
#include "app/MouseDispatch.h"
#include "app/ProfileCommands.h"
#include "app/RecentFiles.h"
#include "app/RememberedSettings.h"
#include "app/SceneDocument.h"
#include "app/SceneTreeModel.h"
#include "app/SelectedItemCommands.h"
#include "app/SelectionState.h"
#include "app/UndoHistory.h"
#include "app/ViewportSet.h"
#include "io/CommonDialogNoOCX.h"
#include "io/TavrinMeshIO.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

class Canvas;
class ColorChooser;
class FileChooser;
class ModalHost;
class SettingsStore;
class UserEventListener;
class WindowFrame;

// The main window's logic. It owns the document and everything that works on it: the
// selection, the scene tree, the viewports, the mouse dispatch and the command groups, which
// reach the editor only through its EditorPort side. It receives the window's events (the
// Qt view, qt/frmTolvaneView, forwards them; the canvases are the view's, attached with
// attachCanvases), hands each to whoever does the work, and then redraws and brings the menus
// up to date.
class frmTolvane : public EditorPort {
public:
    // The start-up document; dialogs are shown through modalHost.
    explicit frmTolvane(ModalHost& dialogs);

    std::string caption() const override { return "Korvan Version 2.0"; }

    // picOrtho(0) to picOrtho(3); viewSpecs(i + 1) belongs to picOrtho(i).
    void attachCanvases(const std::array<Canvas*, 4>& canvases);
    // The window that shows this logic, and the choosers its file dialog opens; until then
    // the File menu's commands do nothing and a right press shows no pop-up menu.
    void attachFrame(WindowFrame& frame, FileChooser& files, ColorChooser& colors);
    // What File > Export Image... writes pictures with, after attachFrame; until then the
    // command does nothing.
    void attachPictureWriter(const PictureWriter& writer);
    // The settings kept between runs: the recent files, and the state the user may have
    // remembered, restored now (the window's geometry is returned for the window to take).
    // Without them the window starts as it always has and keeps no recent files.
    std::optional<WindowGeometry> attachSettings(SettingsStore& store);
    // When the window closes: the remembered state written, if the user wants it kept.
    void saveSettings(const WindowGeometry& window);
    // Opens a file as File > Open does (File > Import... when it is not a .tvm file), the
    // command's file dialog answered with path: the unsaved-changes question, the messages and
    // a macro recording all take it for that command. Nothing before attachFrame.
    void openFile(const std::string& path);
    // Load: draws the start-up document once the canvases are attached.
    void Form_Load();
    // Resize of the client area: lays the viewports out for the new size.
    void Form_Resize(int clientWidth, int clientHeight);

    // Mouse events of canvas picOrtho(index): button codes 1 left, 2 right, 4 middle and
    // their sums; coordinates in canvas pixels.
    void picOrtho_MouseDown(int index, int button, int shift, float x, float y);
    void picOrtho_MouseMove(int index, int button, int shift, float x, float y);
    // The window's part of a drag, which macros do not record: with drag pictures on (the
    // window turns them on; off at start), a navigation drag draws its viewport with a depth
    // buffer, and the release, or a pause the window notices, draws it exactly again.
    void enableDragPictures(bool on) { dragPictures_ = on; }
    void picOrtho_MouseUp();
    // A key pressed in the window (key codes of the desktop): Enter (13) shows the selected
    // items' properties, C (67) closes the profile, E (69) extrudes the selected profiles.
    void Form_KeyDown(int KeyCode);
    // A click on a node selects what it stands for; Delete (key code 46) removes the selected
    // node's item; every key press rebuilds the tree.
    void TreeView1_NodeClick(SceneTreeNode& Node);
    void TreeView1_KeyDown(int KeyCode);
    // Whether the window may close: after Save or Discard when there are unsaved changes.
    bool Form_QueryUnload();

    // The one told of each event the desktop hands this window (not of the start-up load),
    // or nullptr.
    void setUserEventListener(UserEventListener* listener) { userEvents = listener; }

    // What the command groups ask of the editor; the rest of their port is private below.
    void redrawAllViewports() override;
    ViewportScene viewportScene() override;
    void rebuildTree() override;
    UndoHistory& history() override { return undoHistory; }

    // The menu bar and the pop-up menu, with their commands bound.
    MainMenu& getMenus() { return menus; }
    SceneDocument& getDocument() { return document; }
    const SceneDocument& getDocument() const { return document; }
    SelectionState& getSelection() { return selection; }
    const SelectionState& getSelection() const { return selection; }
    SceneTreeModel& getSceneTree() { return TreeView1; }
    const SceneTreeModel& getSceneTree() const { return TreeView1; }
    ViewportSet& getViewports() { return viewports; }
    const ViewportSet& getViewports() const { return viewports; }
    MouseDispatch& getMouse() { return mouse; }
    ProfileCommands& getProfileCommands() { return profileCommands; }

    // The key code TreeView1_KeyDown acts on.
    static constexpr int keyCodeDelete = 46;
    // The client area's size when the editor starts, before the user resizes the window.
    static constexpr int startUpClientWidth = 1280;
    static constexpr int startUpClientHeight = 781;

private:
    // Redraws for a change of views alone: only pictures whose view changed are rendered.
    void refreshViewports();
    void redraw(bool documentChanged);
    void layoutViewports() override;
    void setMouseMode(std::unique_ptr<ClickHandleNothing> mode) override {
        mouse.setMouseMode(std::move(mode));
    }
    ClickHandleNothing& getMouseMode() const override { return mouse.getMouseMode(); }
    int32_t getPopupViewport() const override { return mouse.getPopupViewport(); }
    void showStatus(const std::string& text) override;
    void showPointerPosition(const std::string& position) override {
        mouse.showPointerPosition(position);
    }
    void fileUsed(const std::string& path) override;

    // Removes item n of its list with its node (the key given) as the step named, then
    // redraws.
    template <class Item> void removeItem(int32_t n, const std::string& key, const char* step);
    // Item n selected and its node painted, as a click on the node does.
    template <class Item, class Select>
    void selectByNode(const std::vector<std::shared_ptr<Item>>& items, int32_t n,
                      SceneTreeNode& node, int32_t color, Select select);
    // Options, "&Set Mouse Sensivity": the sensitivity dialog, modally.
    void mnuSetMouseSensivity_Click();
    // Forgets selected items that left the document and brings the menus' enabled states
    // and the window's title up to date; every command and event ends with it.
    void refreshMenus();

    ModalHost& modalHost;
    SceneDocument document;
    UndoHistory undoHistory;
    SceneTreeModel TreeView1;
    SelectionState selection{TreeView1};
    ViewportSet viewports;
    ProfileCommands profileCommands{*this, document, selection, TreeView1, viewports, modalHost};
    MouseDispatch mouse{viewports, document, TreeView1, selection, profileCommands};
    TavrinMeshIO meshIO;
    MainMenu menus;
    UserEventListener* userEvents = nullptr;
    WindowFrame* windowFrame = nullptr;
    bool dragPictures_ = false;
    std::optional<CommonDialogNoOCX> fileDialog;
    std::optional<FileCommands> fileCommands;
    std::optional<MeshCommands> meshCommands;
    std::optional<ImageCommands> imageCommands;
    std::optional<SelectedItemCommands> selectedItemCommands;
    std::optional<RecentFiles> recentFiles;
    std::optional<RememberedSettings> rememberedSettings;
};
