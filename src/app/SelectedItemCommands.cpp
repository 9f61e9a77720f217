#include "app/SelectedItemCommands.h"

#include "app/EditorPort.h"
#include "app/MainMenu.h"
#include "app/SceneDocument.h"
#include "app/SceneTreeModel.h"
#include "app/SelectionState.h"
#include "modelling/frmExtrude.h"
#include "modelling/frmFaceProperty.h"
#include "modelling/frmProfileProperty.h"
#include "modelling/frmSolidProperty.h"
#include "modelling/frmWorkPlaneProperty.h"
#include "platform/ModalHost.h"
#include "platform/Prompts.h"
#include "scene/Transformed3d.h"

#include <exception>

void SelectedItemCommands::bind(MainMenu& menus) {
    for (const char* name : {"mnuCreateExtrusion", "mnuPopupExtrude"}) {
        menus.bind(name, [this] { Extrude(); });
    }
    menus.bind("mnuProperty", [this] { showSelectedProperties(); });
}

void SelectedItemCommands::Extrude() {
    if (selection_.selectedProfiles.empty()) {
        showMessage("Unable to extrude since no profiles were selected.  Please select profile "
                    "before extruding.",
                    "Extrusion Error", MessageIcon::Information);
        return;
    }
    for (const auto& profile : selection_.selectedProfiles) {
        try {
            frmExtrude dialog(dialogs_, colors_, preview_);
            dialog.initialize(profile);
            dialogs_.showModal(dialog);
            if (const auto object = dialog.getExtrusion()) {
                document_.solids.push_back(object);
                const auto n = static_cast<int32_t>(document_.solids.size());
                tree_.addSolidNode(object, n, "Solid");
            }
        } catch (const std::exception&) {
            showMessage("Profile is of un-extrudable shape.  Please redraw or alter profile.",
                        "Unable to Extrude Profile", MessageIcon::Information);
            return;
        }
    }
}

void SelectedItemCommands::showSelectedProperties() {
    for (const auto& face : selection_.selectedFaces) {
        frmFaceProperty dialog(dialogs_, colors_);
        dialog.initialize(face);
        dialogs_.showModal(dialog);
    }
    for (const auto& object : selection_.selectedSolids) {
        frmSolidProperty dialog(colors_);
        dialog.initialize(object);
        dialogs_.showModal(dialog);
    }
    for (const auto& workPlane : selection_.selectedWorkplanes) {
        frmWorkPlaneProperty dialog(colors_);
        dialog.initialize(workPlane);
        dialogs_.showModal(dialog);
    }
    for (const auto& profile : selection_.selectedProfiles) {
        frmProfileProperty dialog;
        dialog.initialize(profile);
        dialogs_.showModal(dialog);
    }
    editor_.redrawAllViewports();
}
