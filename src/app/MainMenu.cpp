#include "app/MainMenu.h"

#include <stdexcept>

namespace {

// The Selectors items, on the bar and in the pop-up; prefix keeps their names apart.
void addSelectors(MenuItem& menu, const std::string& prefix) {
    menu.add(prefix + "SolidSelector", "S&olid Selector");
    menu.add(prefix + "FaceSelector", "&Face Selector");
    menu.add(prefix + "WorkPlaneSelector", "&WorkPlane Selector");
    menu.add(prefix + "ProfileSelector", "&Profile Selector");
}

void addMovement(MenuItem& menu, const std::string& prefix, const std::string& scrollCaption) {
    menu.add(prefix + "Scroll", scrollCaption);
    menu.add(prefix + "Rotate", "&Rotate");
    menu.add(prefix + "Zoom", "&Zoom");
}

} // namespace

MainMenu::MainMenu() {
    MenuItem& file = bar.add("mnuFile", "&File");
    file.add("mnuFileNew", "&New");
    file.add("mnuFileOpen", "&Open");
    MenuItem& recent = file.add("mnuRecentFiles", "Open &Recent");
    for (int i = 1; i <= 10; ++i) {
        recent.add("mnuRecentFile" + std::to_string(i), "").setVisible(false);
    }
    recent.add("mnuRecentSeparator", "-");
    recent.add("mnuRecentClear", "Clear Menu").setEnabled(false);
    file.add("mnuFileSave", "&Save");
    file.add("mnuFileSaveAs", "Save &As...").setShortcuts({"Ctrl+Shift+S"});
    file.add("mnuFileImport", "&Import...");
    file.add("mnuFileExportMesh", "E&xport Mesh...");
    file.add("mnuFileExportImage", "Export &Image...");
    file.add("mnuFileExport", "&Export To Bitmap");
    file.add("mnuFileExit", "E&xit");

    MenuItem& edit = bar.add("mnuEdit", "&Edit");
    MenuItem& undo = edit.add("mnuEditUndo", "&Undo");
    undo.setShortcuts({"Ctrl+Z"});
    undo.setEnabled(false);
    MenuItem& redo = edit.add("mnuEditRedo", "&Redo");
    redo.setShortcuts({"Ctrl+Y", "Ctrl+Shift+Z"});
    redo.setEnabled(false);

    MenuItem& create = bar.add("mnuCreate", "&Create");
    MenuItem& workPlane = create.add("mnuCreateWorkPlane", "&WorkPlane");
    workPlane.add("mnuGraphicCreation", "&Graphic Creation");
    workPlane.add("mnuParameterCreation", "&Parameter Creation");
    create.add("mnuCreateProfile", "&Profile");
    create.add("mnuCreateExtrusion", "&Extrusion");

    MenuItem& options = bar.add("mnuOptions", "&Options");
    options.add("mnuSetMouseSensivity", "&Set Mouse Sensivity");
    MenuItem& viewports = options.add("mnuSetViewports", "&Set Viewports");
    viewports.add("mnuOneWindow", "&One Window");
    viewports.add("mnuFourWindows", "&Four Windows");
    options.add("mnuDepthBufferedPictures", "&Depth-Buffered Pictures");
    options.add("mnuRememberSettings", "&Remember Settings");

    MenuItem& view = bar.add("mnuView", "&View");
    MenuItem& projection = view.add("mnuProjectionType", "&Projection Type");
    projection.add("mnuParallel", "P&arallel", 1);
    projection.add("mnuPerspective", "P&erspective", 2);
    MenuItem& display = view.add("mnuDisplay", "&Display");
    display.add("mnuBackfaceRemoval", "&Backface Removal", 3).setChecked(true);
    display.add("mnuWireframe", "&Wireframe", 4);
    display.add("mnuGrid", "&Grid", 5).setChecked(true);
    display.add("mnuZeroAxes", "&Zero Axes", 6).setChecked(true);
    display.add("mnuReferenceAxes", "&Reference Axes", 7).setChecked(true);
    addMovement(view.add("mnuMovement", "&Movement"), "mnu", "&Scoll");

    popup = &bar.add("mnuPopup", "-view popup-");
    popup->setVisible(false);
    MenuItem& popupSelectors = popup->add("mnuPopupSelectors", "S&electors");
    addSelectors(popupSelectors, "mnuPopup");
    popupSelectors.add("mnuPopupDeselectAll", "&Deselect All");
    MenuItem& setView = popup->add("mnuPopupSetView", "Se&t View");
    setView.add("mnuPopupViewTop", "&Top");
    setView.add("mnuPopupViewSide", "&Side");
    setView.add("mnuPopupViewFront", "&Front");
    setView.add("mnuPopupViewIsometric", "&Isometric");
    MenuItem& popupProjection = popup->add("mnuPopupProjectionType", "&Projection Type");
    popupProjection.add("mnuPopupParallel", "P&arallel");
    popupProjection.add("mnuPopupPerspective", "P&erspective");
    MenuItem& popupDisplay = popup->add("mnuPopupDisplay", "&Display");
    popupDisplay.add("mnuPopupBackfaceRemoval", "&Backface Removal").setChecked(true);
    popupDisplay.add("mnuPopupWireFrame", "&WireFrame");
    addMovement(popup->add("mnuPopupMovement", "&Movement"), "mnuPopup", "&Scroll");
    popup->add("mnuPopupProfile", "&Profile");
    popup->add("mnuPopupExtrude", "&Extrude");

    MenuItem& selectors = bar.add("mnuSelectors", "&Selectors");
    addSelectors(selectors, "mnu");
    selectors.add("mnuSelectorsSeparator1", "-");
    selectors.add("mnuDeselectAll", "&Deselect All");
    selectors.add("mnuSelectorsSeparator2", "-");
    selectors.add("mnuProperty", "&Property <enter>").setEnabled(false);

    MenuItem& profile = bar.add("mnuProfile", "&Profile");
    profile.add("mnuCloseProfile", "&Close Profile");
    profile.add("mnuRedrawProfile", "&Redraw Profile");
    profile.add("mnuCancelProfile", "C&ancel Profile");
}

MenuItem& MainMenu::item(const std::string& name) {
    MenuItem* found = bar.find(name);
    if (found == nullptr) {
        throw std::logic_error("no menu item " + name);
    }
    return *found;
}

void MainMenu::bind(const std::string& name, std::function<void()> command) {
    MenuItem& bound = item(name);
    bound.setCommand([this, &bound, command = std::move(command)] {
        if (choiceListener) {
            choiceListener(bound);
        }
        command();
        if (afterCommand) {
            afterCommand();
        }
    });
}

namespace {

// Appends the captions from below from down to item; false when item is not there.
bool pathTo(const MenuItem& from, const MenuItem& item, std::vector<std::string>& path) {
    for (const auto& child : from.getChildren()) {
        path.push_back(child->getCaption());
        if (child.get() == &item || pathTo(*child, item, path)) {
            return true;
        }
        path.pop_back();
    }
    return false;
}

} // namespace

std::vector<std::string> MainMenu::pathOf(const MenuItem& item) const {
    std::vector<std::string> path;
    if (!pathTo(*popup, item, path)) {
        pathTo(bar, item, path);
    }
    return path;
}

bool MainMenu::isInPopup(const MenuItem& item) const {
    std::vector<std::string> path;
    return pathTo(*popup, item, path);
}
