#include "app/frmTolvane.h"

#include "app/ModeCommands.h"
#include "app/ViewCommands.h"
#include "app/frmMouseSensivity.h"
#include "geometry/Rounding.h"
#include "interaction/ClickHandleRotate.h"
#include "platform/Canvas.h"
#include "platform/ModalHost.h"
#include "platform/WindowFrame.h"
#include "render/KorvanOpsConsts.h"
#include "scene/Transformed3d.h"

frmTolvane::frmTolvane(ModalHost& dialogs)
    : modalHost(dialogs), document(SceneDocument::startUp()),
      mouseMode(std::make_unique<ClickHandleRotate>()) {
    menus.setAfterCommand([this] { refreshMenus(); });
    menus.bind("mnuSetMouseSensivity", [this] { mnuSetMouseSensivity_Click(); });
    ViewCommands::bind(menus, *this, viewports);
    ModeCommands::bind(menus, *this);
    // Workplane and profile creation, extrusion, the Profile menu and Property come with
    // their commands; "&Graphic Creation" does nothing.
}

void frmTolvane::attachCanvases(const std::array<Canvas*, 4>& canvases) {
    viewports.attachCanvases(canvases);
}

void frmTolvane::attachFrame(WindowFrame& frame, FileChooser& files, ColorChooser& colors) {
    windowFrame = &frame;
    fileDialog.emplace(files, colors);
    fileCommands.emplace(*this, document, TreeView1, meshIO, viewports, *fileDialog, frame);
    fileCommands->bind(menus);
}

void frmTolvane::Form_Load() {
    redrawAllViewports();
}

void frmTolvane::Form_Resize(int clientWidth, int clientHeight) {
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
}

void frmTolvane::setSelectedSolids(const std::vector<std::shared_ptr<Transformed3d>>& solids) {
    selection.setSelectedSolids(solids);
}

void frmTolvane::setSelectedFaces(const std::vector<std::shared_ptr<Face3d>>& faces) {
    selection.setSelectedFaces(faces);
}

void frmTolvane::setSelectedWorkplanes(const std::vector<std::shared_ptr<WorkPlane>>& workPlanes) {
    selection.selectedWorkplanes = workPlanes;
}

void frmTolvane::setSelectedProfiles(const std::vector<std::shared_ptr<Profile>>& profiles) {
    selection.selectedProfiles = profiles;
}

void frmTolvane::AddSelectNode(const std::shared_ptr<TreeDisplayNode>& node, int32_t color) {
    selection.AddSelectNode(node, color);
}

void frmTolvane::addProfilePoint(const PointRecord& r) {
    profileCommands.addProfilePoint(r);
}

bool frmTolvane::closeProfile() {
    return profileCommands.closeProfile();
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

void frmTolvane::picOrtho_MouseDown(int index, int button, int, float x, float y) {
    Canvas* canvas = viewports.canvas(index);
    if (canvas == nullptr) {
        return;
    }
    ViewSpecs& record = viewports.viewSpecs(index + 1);
    std::optional<viewInfo> vi{viewInfo{}};
    vi->setSpecs(record);
    MouseEventArgs args = eventArgs(*canvas, Rounding::toInt32(x), Rounding::toInt32(y), vi);
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
            windowFrame->showPopupMenu(*canvas, Rounding::toInt32(x), Rounding::toInt32(y));
        }
    }
    HandleCollectedDatum();
    redrawAllViewports();
    refreshMenus();
}

void frmTolvane::picOrtho_MouseMove(int index, int button, int, float x, float y) {
    Canvas* canvas = viewports.canvas(index);
    if (canvas == nullptr) {
        return;
    }
    ViewSpecs& record = viewports.viewSpecs(index + 1);
    const int32_t mouseX = Rounding::toInt32(x);
    const int32_t mouseY = Rounding::toInt32(y);
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
    // Enter (13, properties) and E (69, extrude) come with their commands.
    if (KeyCode == 67) {
        closeProfile();
    }
    redrawAllViewports();
    refreshMenus();
}

void frmTolvane::refreshMenus() {
    menus.item("mnuProperty").setEnabled(isPropertyMenuEnabled());
}

void frmTolvane::rebuildTree() {
    TreeView1.Nodes.clear();
    for (size_t i = 0; i < document.solids.size(); ++i) {
        addSolidNode(document.solids[i], static_cast<int32_t>(i + 1), "Solid");
    }
}

void frmTolvane::addSolidNode(const std::shared_ptr<Transformed3d>& object, int32_t number,
                              const std::string& caption) {
    auto node = std::make_shared<SceneTreeNode>();
    node->key = "s" + std::to_string(number);
    node->text = caption + std::to_string(number);
    node->image = "solid";
    node->tag = object;
    TreeView1.Nodes.push_back(node);
}
