#include "app/SelectedItemCommands.h"

#include "app/EditorPort.h"
#include "app/FaceEdit.h"
#include "app/ListChange.h"
#include "app/MainMenu.h"
#include "app/ProfileEdit.h"
#include "app/SceneDocument.h"
#include "app/SceneTreeModel.h"
#include "app/SelectionState.h"
#include "app/UndoHistory.h"
#include "app/WorkplaneEdit.h"
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
    std::vector<std::unique_ptr<DocumentCommand>> made;
    for (const auto& profile : selection_.selectedProfiles) {
        try {
            frmExtrude dialog(dialogs_, colors_, preview_);
            dialog.initialize(profile);
            dialogs_.showModal(dialog);
            if (const auto object = dialog.getExtrusion()) {
                made.push_back(ListChange<Transformed3d>::insert(document_, object, 0));
                const auto n = static_cast<int32_t>(document_.solids.size());
                tree_.addSolidNode(object, n, "Solid");
            }
        } catch (const std::exception&) {
            showMessage("Profile is of un-extrudable shape.  Please redraw or alter profile.",
                        "Unable to Extrude Profile", MessageIcon::Information);
            break;
        }
    }
    editor_.history().push("Extrude", std::move(made));
}

namespace {

// What a Properties command changed: one edit per changed item, named after the dialogs of
// the kinds that changed ("Face Properties"), or "Properties" for several kinds.
class PropertyChanges {
public:
    template <class Edit> void add(std::unique_ptr<Edit> edit, const std::string& kind) {
        if (edit) {
            edits_.push_back(std::move(edit));
            name_ = name_.empty() || name_ == kind ? kind : "Properties";
        }
    }
    void record(UndoHistory& history) { history.push(name_, std::move(edits_)); }

private:
    std::vector<std::unique_ptr<DocumentCommand>> edits_;
    std::string name_;
};

// The states of every face of the selected solids.
FaceEdit::Snapshot solidFaceStates(const SelectionState& selection) {
    FaceEdit::Snapshot states;
    for (const auto& object : selection.selectedSolids) {
        FaceEdit::Snapshot more = FaceEdit::capture(object->getFaces());
        states.insert(states.end(), std::make_move_iterator(more.begin()),
                      std::make_move_iterator(more.end()));
    }
    return states;
}

} // namespace

void SelectedItemCommands::showSelectedProperties() {
    // Every state a dialog may change, taken before the first dialog opens.
    const FaceEdit::Snapshot faces = FaceEdit::capture(selection_.selectedFaces);
    const FaceEdit::Snapshot solidFaces = solidFaceStates(selection_);
    std::vector<WorkplaneEdit::Snapshot> workPlanes;
    for (const auto& workPlane : selection_.selectedWorkplanes) {
        workPlanes.push_back(WorkplaneEdit::capture(workPlane));
    }
    std::vector<ProfileEdit::Snapshot> profiles;
    for (const auto& profile : selection_.selectedProfiles) {
        profiles.push_back(ProfileEdit::capture(profile));
    }
    showDialogs();
    PropertyChanges changes;
    changes.add(FaceEdit::since(faces), "Face Properties");
    changes.add(FaceEdit::since(solidFaces), "Solid Properties");
    for (const auto& before : workPlanes) {
        changes.add(WorkplaneEdit::since(before), "Workplane Properties");
    }
    for (const auto& before : profiles) {
        changes.add(ProfileEdit::since(before), "Profile Properties");
    }
    changes.record(editor_.history());
    editor_.redrawAllViewports();
}

void SelectedItemCommands::showDialogs() {
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
}
