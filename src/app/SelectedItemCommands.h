#pragma once

class ColorChooser;
class EditorPort;
class ExtrusionPreviewTarget;
class MainMenu;
class ModalHost;
class SceneTreeModel;
class SelectionState;
struct SceneDocument;

// The commands that hand the selected items to their dialogs: Extrude sweeps each selected
// profile into a new solid, Properties opens the property dialog of every selected item.
// Each command that changed the document is one step of the editor's history, however many
// dialogs it showed.
class SelectedItemCommands {
public:
    // The extrusion dialog previews its normal in preview's viewports.
    SelectedItemCommands(EditorPort& editor, SceneDocument& document,
                         const SelectionState& selection, SceneTreeModel& tree, ModalHost& dialogs,
                         ColorChooser& colors, ExtrusionPreviewTarget& preview)
        : editor_(editor), document_(document), selection_(selection), tree_(tree),
          dialogs_(dialogs), colors_(colors), preview_(preview) {}

    // Makes "&Extrusion", the pop-up's "&Extrude" and "&Property <enter>" run these.
    void bind(MainMenu& menus);

    // One extrusion dialog per selected profile, in order; each new solid is appended with
    // its tree node. An error while one profile is extruded is reported and ends the
    // command, keeping the solids already made (the step holds them). Refused with a message
    // when no profile is selected. Nothing is redrawn here.
    void Extrude();
    // Opens the dialog of every selected face, solid, workplane and profile, in that order,
    // then redraws.
    void showSelectedProperties();

private:
    EditorPort& editor_;
    SceneDocument& document_;
    const SelectionState& selection_;
    SceneTreeModel& tree_;
    ModalHost& dialogs_;
    ColorChooser& colors_;
    ExtrusionPreviewTarget& preview_;
};
