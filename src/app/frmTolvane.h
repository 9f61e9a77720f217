#pragma once

#include "app/FileCommands.h"
#include "app/MainMenu.h"
#include "app/MouseSensivityTarget.h"
#include "app/ProfileCommands.h"
#include "app/SceneDocument.h"
#include "app/SceneTreeModel.h"
#include "app/SelectedItemCommands.h"
#include "app/SelectionState.h"
#include "app/ViewportSet.h"
#include "interaction/ClickHandleNothing.h"
#include "interaction/ClickReceiver.h"
#include "io/CommonDialogNoOCX.h"
#include "io/TavrinMeshIO.h"
#include "modelling/ExtrusionPreviewTarget.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

class Canvas;
class ColorChooser;
class FileChooser;
class ModalHost;
class UserEventListener;
class WindowFrame;

// The main window's logic: the one object mouse modes and dialogs call back. Each of its
// operations hands the work to a collaborator: the document, the selection, the scene tree,
// the viewports, the command groups. It also holds the sensitivity and the mouse mode and
// dispatches mouse events on the canvases to the mode. The Qt view (qt/frmTolvaneView) shows
// it and forwards the window's events; the canvases are the view's, attached with
// attachCanvases.
class frmTolvane : public ClickReceiver,
                   public MouseSensivityTarget,
                   public ExtrusionPreviewTarget {
public:
    // The start-up document; dialogs are shown through modalHost.
    explicit frmTolvane(ModalHost& dialogs);

    std::string caption() const { return "Korvan Version 2.0"; }

    // picOrtho(0) to picOrtho(3); viewSpecs(i + 1) belongs to picOrtho(i).
    void attachCanvases(const std::array<Canvas*, 4>& canvases);
    // The window that shows this logic, and the choosers its file dialog opens; until then
    // the File menu's commands do nothing and a right press shows no pop-up menu.
    void attachFrame(WindowFrame& frame, FileChooser& files, ColorChooser& colors);
    // Load: draws the start-up document once the canvases are attached.
    void Form_Load();
    // Resize of the client area: lays the viewports out for the new size.
    void Form_Resize(int clientWidth, int clientHeight);

    void layoutViewports();
    void redrawAllViewports();

    std::optional<viewInfo> getViewInfo(int32_t index) const override;
    void getPicOrthoBounds(int32_t& lower, int32_t& upper) const override;
    Canvas* getPicOrtho(int32_t index) const override { return viewports.canvas(index); }
    void setMouseSensivity(float Sensivity) override { MouseSensivity = Sensivity; }
    float getMouseSensivity() const { return MouseSensivity; }
    void HandleCollectedDatum() {}

    // What selectors call back.
    void resetAllSelect() override;
    void setSelectedSolids(const std::vector<std::shared_ptr<Transformed3d>>& solids) override;
    void setSelectedFaces(const std::vector<std::shared_ptr<Face3d>>& faces) override;
    void setSelectedWorkplanes(const std::vector<std::shared_ptr<WorkPlane>>& workPlanes) override;
    void setSelectedProfiles(const std::vector<std::shared_ptr<Profile>>& profiles) override;
    void AddSelectNode(const std::shared_ptr<TreeDisplayNode>& node, int32_t color) override;
    void resetSelectSolids();
    void resetSelectFaces();
    void resetSelectWorkplanes();
    void resetSelectProfiles();
    void resetSelectNodes();
    // Whether "&Property <enter>" is enabled: something is selected, as last worked out.
    bool isPropertyMenuEnabled() const { return selection.isPropertyMenuEnabled(); }

    // The scene tree: nodes for items added to the document, and removal of item n with its
    // node (the key given), after which the viewports are drawn again.
    void addWorkplaneNode(const std::shared_ptr<WorkPlane>& workPlane, const std::string& caption);
    void addSolidPointChildNodes(SceneTreeNode& node, const Transformed3d& object);
    void removeSolid(int32_t n, const std::string& key);
    void removeWorkplane(int32_t n, const std::string& key);
    void removeProfile(int32_t n, const std::string& key);
    // A click on a node selects what it stands for; Delete (key code 46) removes the selected
    // node's item; every key press rebuilds the tree.
    void TreeView1_NodeClick(SceneTreeNode& Node);
    void TreeView1_KeyDown(int KeyCode);
    SceneTreeModel& getSceneTree() { return TreeView1; }
    const SceneTreeModel& getSceneTree() const { return TreeView1; }

    // The profile being drawn: a new one on the selected workplane, the current one, and
    // what the profile tool calls back.
    void createProfile();
    void setCurrentProfile(const std::shared_ptr<Profile>& profile);
    void addProfilePoint(const PointRecord& r) override;
    bool closeProfile() override;
    // The property dialogs of everything selected, then a redraw; nothing before attachFrame.
    void showSelectedProperties();

    // Mouse events of canvas picOrtho(index): button codes 1 left, 2 right, 4 middle and
    // their sums; coordinates in canvas pixels.
    void picOrtho_MouseDown(int index, int button, int shift, float x, float y);
    void picOrtho_MouseMove(int index, int button, int shift, float x, float y);

    // Options, "&Set Mouse Sensivity": the sensitivity dialog, modally.
    void mnuSetMouseSensivity_Click();
    // A key pressed in the window (key codes of the desktop): Enter (13) shows the selected
    // items' properties, C (67) closes the profile, E (69) extrudes the selected profiles.
    void Form_KeyDown(int KeyCode);

    // The one told of each event the desktop hands this window (not of the start-up load),
    // or nullptr.
    void setUserEventListener(UserEventListener* listener) { userEvents = listener; }

    // The menu bar and the pop-up menu, with their commands bound.
    MainMenu& getMenus() { return menus; }
    // The tree anew from the document.
    void rebuildTree();

    void setMouseMode(std::unique_ptr<ClickHandleNothing> mode) { mouseMode = std::move(mode); }
    ClickHandleNothing& getMouseMode() const { return *mouseMode; }
    void setViewportLayout(int32_t layout) { viewports.viewportLayout = layout; }
    int32_t getViewportLayout() const { return viewports.viewportLayout; }
    int32_t getPopupViewport() const { return popupViewport; }
    const ControlPlacement& getTreePlacement() const { return viewports.getTreePlacement(); }
    SceneDocument& getDocument() { return document; }
    const SceneDocument& getDocument() const { return document; }
    const SelectionState& getSelection() const { return selection; }
    const ViewSpecs& getViewSpecs(int number) const { return viewports.viewSpecs(number); }

    // The key code TreeView1_KeyDown acts on.
    static constexpr int keyCodeDelete = 46;
    // The client area's size when the editor starts, before the user resizes the window.
    static constexpr int startUpClientWidth = 1280;
    static constexpr int startUpClientHeight = 781;

private:
    template <class Item>
    void removeItem(std::vector<std::shared_ptr<Item>>& items, int32_t n, const std::string& key);
    // Item n selected and its node painted, as a click on the node does.
    template <class Item, class Select>
    void selectByNode(const std::vector<std::shared_ptr<Item>>& items, int32_t n,
                      SceneTreeNode& node, int32_t color, Select select);
    MouseEventArgs eventArgs(Canvas& canvas, int32_t x, int32_t y, std::optional<viewInfo>& view);
    // A mouse coordinate in whole canvas pixels, within a million or so of the canvas.
    static int32_t canvasPixel(float coordinate);
    // Forgets selected items that left the document and brings the menus' enabled states
    // up to date; every command and event ends with it.
    void refreshMenus();

    ModalHost& modalHost;
    SceneDocument document;
    SelectionState selection;
    SceneTreeModel TreeView1;
    ViewportSet viewports;
    ProfileCommands profileCommands{*this, document, selection, TreeView1, viewports, modalHost};
    float MouseSensivity = 0.0025f;
    int32_t popupViewport = 0;
    std::unique_ptr<ClickHandleNothing> mouseMode;
    TavrinMeshIO meshIO;
    MainMenu menus;
    WindowFrame* windowFrame = nullptr;
    UserEventListener* userEvents = nullptr;
    std::optional<CommonDialogNoOCX> fileDialog;
    std::optional<FileCommands> fileCommands;
    std::optional<SelectedItemCommands> selectedItemCommands;
};
