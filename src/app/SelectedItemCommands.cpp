#include "app/SelectedItemCommands.h"

#include "app/EditorPort.h"
#include "app/FaceEdit.h"
#include "app/ListChange.h"
#include "app/MainMenu.h"
#include "app/ProfileEdit.h"
#include "app/SceneDocument.h"
#include "app/SceneTreeModel.h"
#include "app/SelectionState.h"
#include "app/SolidEdit.h"
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

} // namespace

void SelectedItemCommands::showSelectedProperties() {
    // Each kind's states are taken just before its dialogs open and compared just after, so
    // that an edit holds what those dialogs changed, also where a face belongs to a
    // selected solid as well.
    PropertyChanges changes;
    const FaceEdit::Snapshot faces = FaceEdit::capture(selection_.selectedFaces);
    for (const auto& face : selection_.selectedFaces) {
        frmFaceProperty dialog(dialogs_, colors_);
        dialog.initialize(face);
        dialogs_.showModal(dialog);
    }
    changes.add(FaceEdit::since(faces), "Face Properties");
    for (const auto& object : selection_.selectedSolids) {
        const SolidEdit::Snapshot before = SolidEdit::capture(*object);
        frmSolidProperty dialog(colors_);
        dialog.initialize(object);
        dialogs_.showModal(dialog);
        changes.add(SolidEdit::since(before, dialog.reversedFaces()), "Solid Properties");
    }
    for (const auto& workPlane : selection_.selectedWorkplanes) {
        const WorkplaneEdit::Snapshot before = WorkplaneEdit::capture(workPlane);
        frmWorkPlaneProperty dialog(colors_);
        dialog.initialize(workPlane);
        dialogs_.showModal(dialog);
        changes.add(WorkplaneEdit::since(before), "Workplane Properties");
    }
    for (const auto& profile : selection_.selectedProfiles) {
        const ProfileEdit::Snapshot before = ProfileEdit::capture(profile);
        frmProfileProperty dialog;
        dialog.initialize(profile);
        dialogs_.showModal(dialog);
        changes.add(ProfileEdit::since(before), "Profile Properties");
    }
    changes.record(editor_.history());
    editor_.redrawAllViewports();
}
