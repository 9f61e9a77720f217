#include "app/frmTolvane.h"

#include "app/EditCommands.h"
#include "app/ListChange.h"
#include "app/ModeCommands.h"
#include "app/TreeKey.h"
#include "app/UserEventListener.h"
#include "app/ViewCommands.h"
#include "app/WorkplaneCommands.h"
#include "app/frmMouseSensivity.h"
#include "io/PosixFileSystem.h"
#include "platform/Canvas.h"
#include "platform/ModalHost.h"
#include "platform/WindowFrame.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"

frmTolvane::frmTolvane(ModalHost& dialogs)
    : modalHost(dialogs), document(SceneDocument::startUp()) {
    menus.setAfterCommand([this] { refreshMenus(); });
    menus.setChoiceListener([this](const MenuItem& item) {
        if (userEvents != nullptr) {
            userEvents->menuChosen(item);
        }
    });
    menus.bind("mnuSetMouseSensivity", [this] { mnuSetMouseSensivity_Click(); });
    EditCommands::bind(menus, *this, document);
    ViewCommands::bind(menus, *this, viewports);
    ModeCommands::bind(menus, *this, selection);
    profileCommands.bind(menus);
}

void frmTolvane::attachCanvases(const std::array<Canvas*, 4>& canvases) {
    viewports.attachCanvases(canvases);
}

void frmTolvane::attachFrame(WindowFrame& frame, FileChooser& files, ColorChooser& colors) {
    windowFrame = &frame;
    mouse.attachFrame(frame);
    fileDialog.emplace(files, colors);
    fileCommands.emplace(*this, document, selection, TreeView1, meshIO, viewports, *fileDialog,
                         frame);
    fileCommands->bind(menus);
    meshCommands.emplace(*this, document, selection, TreeView1, PosixFileSystem::instance(),
                         *fileDialog);
    meshCommands->bind(menus);
    // The dialogs of these commands have colour swatches.
    WorkplaneCommands::bind(menus, *this, modalHost, colors, document, TreeView1);
    selectedItemCommands.emplace(*this, document, selection, TreeView1, modalHost, colors,
                                 viewports);
    selectedItemCommands->bind(menus);
    refreshMenus();
}

void frmTolvane::attachPictureWriter(const PictureWriter& writer) {
    if (fileDialog) {
        imageCommands.emplace(*this, viewports, modalHost, *fileDialog, writer);
        imageCommands->bind(menus);
    }
}

bool frmTolvane::Form_QueryUnload() {
    const bool mayClose = !fileCommands || fileCommands->settleUnsavedChanges();
    refreshMenus();
    return mayClose;
}

void frmTolvane::showStatus(const std::string& text) {
    if (windowFrame != nullptr) {
        windowFrame->showStatus(text);
    }
}

std::optional<WindowGeometry> frmTolvane::attachSettings(SettingsStore& store) {
    recentFiles.emplace(store, PosixFileSystem::instance(), menus,
                        [this](const std::string& path) { openFile(path); });
    rememberedSettings.emplace(store, menus, viewports, mouse);
    const std::optional<WindowGeometry> window = rememberedSettings->restore();
    layoutViewports();
    return window;
}

void frmTolvane::saveSettings(const WindowGeometry& window) {
    if (rememberedSettings) {
        rememberedSettings->save(window);
    }
}

void frmTolvane::fileUsed(const std::string& path) {
    if (recentFiles) {
        recentFiles->add(path);
    }
}

void frmTolvane::openFile(const std::string& path) {
    if (windowFrame == nullptr) {
        return;
    }
    // A command stopped before it asked for the file (by the unsaved-changes question) must
    // leave no answer behind for the next dialog, which may be a save.
    struct TakeBack {
        WindowFrame& frame;
        ~TakeBack() { frame.answerNextFileDialog(""); }
    } takeBack{*windowFrame};
    const bool own = MeshFiles::formatOf(path) == MeshFiles::Format::Tvm;
    windowFrame->answerNextFileDialog(path);
    menus.item(own ? "mnuFileOpen" : "mnuFileImport").click();
}

void frmTolvane::Form_Load() {
    redrawAllViewports();
}

void frmTolvane::Form_Resize(int clientWidth, int clientHeight) {
    if (userEvents != nullptr) {
        userEvents->clientResized(clientWidth, clientHeight);
    }
    viewports.setClientSize(clientWidth, clientHeight);
    layoutViewports();
}

void frmTolvane::layoutViewports() {
    viewports.layoutViewports();
    redrawAllViewports();
}

void frmTolvane::redrawAllViewports() {
    redraw(true);
}

void frmTolvane::refreshViewports() {
    redraw(false);
}

ViewportScene frmTolvane::viewportScene() {
    // The menu's check marks are the switches of grid and axes.
    ViewportScene scene = document.scene();
    scene.showGrid = menus.item("mnuGrid").isChecked();
    scene.showZeroAxes = menus.item("mnuZeroAxes").isChecked();
    scene.showReferenceAxes = menus.item("mnuReferenceAxes").isChecked();
    return scene;
}

void frmTolvane::redraw(bool documentChanged) {
    viewports.depthBufferedAtRest = menus.item("mnuDepthBufferedPictures").isChecked();
    viewports.redrawAll(
        viewportScene(),
        [this](Canvas& canvas, const ViewSpecs& record) { mouse.drawOverlay(canvas, record); },
        documentChanged);
}

template <class Item>
void frmTolvane::removeItem(int32_t n, const std::string& key, const char* step) {
    // A number the document does not have (the tree out of step) removes no item.
    if (n >= 1) {
        undoHistory.push(step + std::to_string(n),
                         ListChange<Item>::remove(document, static_cast<size_t>(n)));
    }
    TreeView1.removeNode(key);
    redrawAllViewports();
}

void frmTolvane::TreeView1_NodeClick(SceneTreeNode& Node) {
    if (userEvents != nullptr) {
        userEvents->treeNodeClicked(Node);
    }
    TreeView1.SelectedItem = Node.shared_from_this();
    const TreeKey key(Node.key);
    selection.resetAllSelect();
    if (key.letter == 's') {
        selectByNode(document.solids, key.number, Node, 255,
                     [this](const auto& hit) { selection.setSelectedSolids(hit); });
    } else if (key.letter == 'w') {
        selectByNode(document.workPlanes, key.number, Node, 65535,
                     [this](const auto& hit) { selection.setSelectedWorkplanes(hit); });
    } else if (key.letter == 'r') {
        selectByNode(document.profiles, key.number, Node, 16711935,
                     [this](const auto& hit) { selection.setSelectedProfiles(hit); });
    } else if (key.letter == 'f' && key.solidNumber >= 1 &&
               static_cast<size_t>(key.solidNumber) <= document.solids.size()) {
        selectByNode(document.solids[static_cast<size_t>(key.solidNumber - 1)]->getFaces(),
                     key.number, Node, 16776960,
                     [this](const auto& hit) { selection.setSelectedFaces(hit); });
    }
    redrawAllViewports();
    refreshMenus();
}

template <class Item, class Select>
void frmTolvane::selectByNode(const std::vector<std::shared_ptr<Item>>& items, int32_t n,
                              SceneTreeNode& node, int32_t color, Select select) {
    // A key the document has no item for (the tree out of step) selects nothing.
    if (n < 1 || static_cast<size_t>(n) > items.size()) {
        return;
    }
    const auto& item = items[static_cast<size_t>(n - 1)];
    item->setSelected(true);
    selection.AddSelectNode(node.shared_from_this(), color);
    select(std::vector<std::shared_ptr<Item>>{item});
}

void frmTolvane::TreeView1_KeyDown(int KeyCode) {
    if (userEvents != nullptr) {
        userEvents->treeKeyPressed(KeyCode);
    }
    if (KeyCode == keyCodeDelete && TreeView1.SelectedItem) {
        const std::string key = TreeView1.SelectedItem->key;
        const TreeKey parsed(key);
        if (parsed.letter == 's') {
            removeItem<Transformed3d>(parsed.number, key, "Delete Solid ");
        } else if (parsed.letter == 'w') {
            removeItem<WorkPlane>(parsed.number, key, "Delete Workplane ");
        } else if (parsed.letter == 'r') {
            removeItem<Profile>(parsed.number, key, "Delete Profile ");
        }
    }
    rebuildTree();
    refreshMenus();
}

void frmTolvane::mnuSetMouseSensivity_Click() {
    frmMouseSensivity dialog;
    dialog.setSensivityDisplayValue(mouse.getMouseSensivity());
    dialog.setCallBackForm(&mouse);
    modalHost.showModal(dialog);
}

void frmTolvane::picOrtho_MouseDown(int index, int button, int shift, float x, float y) {
    if (userEvents != nullptr) {
        userEvents->mousePressed(index, button, shift, x, y);
    }
    if (!mouse.mouseDown(index, button, x, y)) {
        return;
    }
    // A press that only navigates changes no more than its view; the other modes' presses
    // select, add points and open dialogs.
    if (mouse.getMouseMode().navigates()) {
        refreshViewports();
    } else {
        redrawAllViewports();
    }
    refreshMenus();
}

void frmTolvane::picOrtho_MouseMove(int index, int button, int shift, float x, float y) {
    if (userEvents != nullptr) {
        userEvents->mouseMoved(index, button, shift, x, y);
    }
    if (!mouse.mouseMove(index, button, x, y)) {
        return;
    }
    // A move changes at most the views.
    if (dragPictures_ && button == 1 && mouse.getMouseMode().navigates()) {
        viewports.draggedViewport = index;
    }
    refreshViewports();
    viewports.canvas(index)->refresh();
    refreshMenus();
}

void frmTolvane::picOrtho_MouseUp() {
    if (viewports.draggedViewport != -1) {
        viewports.draggedViewport = -1;
        refreshViewports();
    }
}

void frmTolvane::Form_KeyDown(int KeyCode) {
    if (userEvents != nullptr) {
        userEvents->keyPressed(KeyCode);
    }
    bool acted = true;
    if (KeyCode == 13 && selectedItemCommands) {
        selectedItemCommands->showSelectedProperties();
    } else if (KeyCode == 67) {
        profileCommands.closeProfile();
    } else if (KeyCode == 69 && selectedItemCommands) {
        selectedItemCommands->Extrude();
    } else {
        acted = false; // any other key changes nothing a picture shows
    }
    redraw(acted);
    refreshMenus();
}

void frmTolvane::refreshMenus() {
    selection.forgetAllBut(document);
    menus.item("mnuProperty").setEnabled(selection.isPropertyMenuEnabled());
    EditCommands::refresh(menus, undoHistory);
    if (windowFrame != nullptr && fileCommands) {
        windowFrame->setTitle(fileCommands->title(), undoHistory.isModified());
    }
}

void frmTolvane::rebuildTree() {
    TreeView1.rebuildTree(document);
    selection.repaintNodes(document);
}
