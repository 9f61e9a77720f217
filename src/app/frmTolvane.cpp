#include "app/frmTolvane.h"

#include "app/ModeCommands.h"
#include "app/TreeKey.h"
#include "app/UserEventListener.h"
#include "app/ViewCommands.h"
#include "app/WorkplaneCommands.h"
#include "app/frmMouseSensivity.h"
#include "geometry/Rounding.h"
#include "interaction/ClickHandleRotate.h"
#include "platform/Canvas.h"
#include "platform/ModalHost.h"
#include "platform/WindowFrame.h"
#include "render/KorvanOpsConsts.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"

#include <algorithm>

frmTolvane::frmTolvane(ModalHost& dialogs)
    : modalHost(dialogs), document(SceneDocument::startUp()),
      mouseMode(std::make_unique<ClickHandleRotate>()) {
    menus.setAfterCommand([this] { refreshMenus(); });
    menus.setChoiceListener([this](const MenuItem& item) {
        if (userEvents != nullptr) {
            userEvents->menuChosen(item);
        }
    });
    menus.bind("mnuSetMouseSensivity", [this] { mnuSetMouseSensivity_Click(); });
    ViewCommands::bind(menus, *this, viewports);
    ModeCommands::bind(menus, *this);
    profileCommands.bind(menus);
}

void frmTolvane::attachCanvases(const std::array<Canvas*, 4>& canvases) {
    viewports.attachCanvases(canvases);
}

void frmTolvane::attachFrame(WindowFrame& frame, FileChooser& files, ColorChooser& colors) {
    windowFrame = &frame;
    fileDialog.emplace(files, colors);
    fileCommands.emplace(*this, document, TreeView1, meshIO, viewports, *fileDialog, frame);
    fileCommands->bind(menus);
    // The dialogs of these commands have colour swatches.
    WorkplaneCommands::bind(menus, modalHost, colors, document, TreeView1);
    selectedItemCommands.emplace(*this, document, selection, TreeView1, modalHost, colors);
    selectedItemCommands->bind(menus);
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
    // The menu's check marks are the switches of grid and axes.
    ViewportScene scene = document.scene();
    scene.showGrid = menus.item("mnuGrid").isChecked();
    scene.showZeroAxes = menus.item("mnuZeroAxes").isChecked();
    scene.showReferenceAxes = menus.item("mnuReferenceAxes").isChecked();
    viewports.redrawAll(scene, [this](Canvas& canvas, const ViewSpecs& record) {
        float ex;
        float ey;
        float ez;
        KorvanOpsConsts::getEyePosition(record, ex, ey, ez);
        std::optional<viewInfo> copy{viewInfo{}};
        copy->setSpecs(record);
        MouseEventArgs args = eventArgs(canvas, Rounding::toInt32(ex), Rounding::toInt32(ey), copy);
        mouseMode->drawDatum(args);
    });
}

std::optional<viewInfo> frmTolvane::getViewInfo(int32_t index) const {
    return viewports.getViewInfo(index);
}

void frmTolvane::getPicOrthoBounds(int32_t& lower, int32_t& upper) const {
    lower = 0;
    upper = 3;
}

void frmTolvane::resetAllSelect() {
    selection.resetAllSelect();
    TreeView1.refresh();
}

void frmTolvane::setSelectedSolids(const std::vector<std::shared_ptr<Transformed3d>>& solids) {
    selection.setSelectedSolids(solids);
}

void frmTolvane::setSelectedFaces(const std::vector<std::shared_ptr<Face3d>>& faces) {
    selection.setSelectedFaces(faces);
}

void frmTolvane::setSelectedWorkplanes(const std::vector<std::shared_ptr<WorkPlane>>& workPlanes) {
    selection.setSelectedWorkplanes(workPlanes);
}

void frmTolvane::setSelectedProfiles(const std::vector<std::shared_ptr<Profile>>& profiles) {
    selection.setSelectedProfiles(profiles);
}

void frmTolvane::AddSelectNode(const std::shared_ptr<TreeDisplayNode>& node, int32_t color) {
    selection.AddSelectNode(node, color);
    TreeView1.refresh();
}

void frmTolvane::resetSelectSolids() {
    selection.resetSelectSolids();
}

void frmTolvane::resetSelectFaces() {
    selection.resetSelectFaces();
}

void frmTolvane::resetSelectWorkplanes() {
    selection.resetSelectWorkplanes();
}

void frmTolvane::resetSelectProfiles() {
    selection.resetSelectProfiles();
}

void frmTolvane::resetSelectNodes() {
    selection.resetSelectNodes();
    TreeView1.refresh();
}

void frmTolvane::addWorkplaneNode(const std::shared_ptr<WorkPlane>& workPlane,
                                  const std::string& caption) {
    TreeView1.addWorkplaneNode(workPlane, caption);
}

void frmTolvane::addSolidPointChildNodes(SceneTreeNode& node, const Transformed3d& object) {
    TreeView1.addSolidPointChildNodes(node, object);
}

void frmTolvane::removeSolid(int32_t n, const std::string& key) {
    removeItem(document.solids, n, key);
}

void frmTolvane::removeWorkplane(int32_t n, const std::string& key) {
    removeItem(document.workPlanes, n, key);
}

void frmTolvane::removeProfile(int32_t n, const std::string& key) {
    document.removeProfile(n);
    TreeView1.removeNode(key);
    redrawAllViewports();
}

template <class Item>
void frmTolvane::removeItem(std::vector<std::shared_ptr<Item>>& items, int32_t n,
                            const std::string& key) {
    // A number the document does not have (the tree out of step) removes no item.
    if (n >= 1 && static_cast<size_t>(n) <= items.size()) {
        items.erase(items.begin() + (n - 1));
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
    resetAllSelect();
    if (key.letter == 's') {
        selectByNode(document.solids, key.number, Node, 255,
                     [this](const auto& hit) { setSelectedSolids(hit); });
    } else if (key.letter == 'w') {
        selectByNode(document.workPlanes, key.number, Node, 65535,
                     [this](const auto& hit) { setSelectedWorkplanes(hit); });
    } else if (key.letter == 'r') {
        selectByNode(document.profiles, key.number, Node, 16711935,
                     [this](const auto& hit) { setSelectedProfiles(hit); });
    } else if (key.letter == 'f' && key.solidNumber >= 1 &&
               static_cast<size_t>(key.solidNumber) <= document.solids.size()) {
        selectByNode(document.solids[static_cast<size_t>(key.solidNumber - 1)]->getFaces(),
                     key.number, Node, 16776960,
                     [this](const auto& hit) { setSelectedFaces(hit); });
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
    AddSelectNode(node.shared_from_this(), color);
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
            removeSolid(parsed.number, key);
        } else if (parsed.letter == 'w') {
            removeWorkplane(parsed.number, key);
        } else if (parsed.letter == 'r') {
            removeProfile(parsed.number, key);
        }
    }
    rebuildTree();
    refreshMenus();
}

void frmTolvane::createProfile() {
    profileCommands.createProfile();
}

void frmTolvane::setCurrentProfile(const std::shared_ptr<Profile>& profile) {
    profileCommands.setCurrentProfile(profile);
}

void frmTolvane::addProfilePoint(const PointRecord& r) {
    profileCommands.addProfilePoint(r);
}

bool frmTolvane::closeProfile() {
    return profileCommands.closeProfile();
}

void frmTolvane::showSelectedProperties() {
    if (selectedItemCommands) {
        selectedItemCommands->showSelectedProperties();
    }
}

void frmTolvane::mnuSetMouseSensivity_Click() {
    frmMouseSensivity dialog;
    dialog.setSensivityDisplayValue(MouseSensivity);
    dialog.setCallBackForm(this);
    modalHost.showModal(dialog);
}

MouseEventArgs frmTolvane::eventArgs(Canvas& canvas, int32_t x, int32_t y,
                                     std::optional<viewInfo>& view) {
    return MouseEventArgs{canvas,
                          *this,
                          x,
                          y,
                          MouseSensivity,
                          view,
                          document.solids,
                          document.workPlanes,
                          document.profiles,
                          TreeView1};
}

int32_t frmTolvane::canvasPixel(float coordinate) {
    // No screen is a million pixels across; beyond that a position means nothing more, and
    // differences of positions stay far inside 32 bits.
    constexpr int32_t limit = 1 << 20;
    return std::clamp(Rounding::toInt32(coordinate), -limit, limit);
}

void frmTolvane::picOrtho_MouseDown(int index, int button, int shift, float x, float y) {
    if (userEvents != nullptr) {
        userEvents->mousePressed(index, button, shift, x, y);
    }
    Canvas* canvas = viewports.canvas(index);
    if (canvas == nullptr) {
        return;
    }
    ViewSpecs& record = viewports.viewSpecs(index + 1);
    std::optional<viewInfo> vi{viewInfo{}};
    vi->setSpecs(record);
    MouseEventArgs args = eventArgs(*canvas, canvasPixel(x), canvasPixel(y), vi);
    std::optional<viewInfo> result;
    switch (button) {
    case 1:
        result = mouseMode->handleLeftClick(args);
        break;
    case 2:
        result = mouseMode->handleRightClick(args);
        break;
    case 4:
        result = mouseMode->handleMiddleClick(args);
        break;
    default:
        break; // several buttons at once: no handler
    }
    if (result) {
        record = result->getSpecs();
    }
    if (button == 2) {
        popupViewport = index + 1;
        // Shown after the handler's record is stored, so that the chosen command's change to
        // the record stays; it runs before this press redraws.
        if (windowFrame != nullptr) {
            windowFrame->showPopupMenu(*canvas, canvasPixel(x), canvasPixel(y));
        }
    }
    HandleCollectedDatum();
    redrawAllViewports();
    refreshMenus();
}

void frmTolvane::picOrtho_MouseMove(int index, int button, int shift, float x, float y) {
    if (userEvents != nullptr) {
        userEvents->mouseMoved(index, button, shift, x, y);
    }
    Canvas* canvas = viewports.canvas(index);
    if (canvas == nullptr) {
        return;
    }
    ViewSpecs& record = viewports.viewSpecs(index + 1);
    const int32_t mouseX = canvasPixel(x);
    const int32_t mouseY = canvasPixel(y);
    std::optional<viewInfo> vi{viewInfo{}};
    vi->setSpecs(record);
    if (button == 1) {
        canvas->setMousePointer(mouseMode->getMouseIcon());
        MouseEventArgs args = eventArgs(*canvas, mouseX, mouseY, vi);
        // The move handler below gets this result, none included.
        vi = mouseMode->handleMouseMoveLeftClick(args);
        if (vi) {
            record = vi->getSpecs();
        }
    } else if (button != 2 && button != 4) {
        canvas->setMousePointer(MousePointer::Crosshair);
    }
    record.anchorX = mouseX;
    record.anchorY = mouseY;
    MouseEventArgs args = eventArgs(*canvas, mouseX, mouseY, vi);
    mouseMode->handleMouseMove(args);
    HandleCollectedDatum();
    redrawAllViewports();
    canvas->refresh();
    refreshMenus();
}

void frmTolvane::Form_KeyDown(int KeyCode) {
    if (userEvents != nullptr) {
        userEvents->keyPressed(KeyCode);
    }
    if (KeyCode == 13) {
        showSelectedProperties();
    } else if (KeyCode == 67) {
        closeProfile();
    } else if (KeyCode == 69 && selectedItemCommands) {
        selectedItemCommands->Extrude();
    }
    redrawAllViewports();
    refreshMenus();
}

void frmTolvane::refreshMenus() {
    selection.forgetAllBut(document);
    menus.item("mnuProperty").setEnabled(isPropertyMenuEnabled());
}

void frmTolvane::rebuildTree() {
    TreeView1.rebuildTree(document);
    selection.repaintNodes(document, TreeView1);
    TreeView1.refresh();
}
