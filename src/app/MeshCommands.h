#pragma once

#include "io/MeshFiles.h"

#include <string>

class CommonDialogNoOCX;
class EditorPort;
class MainMenu;
class SceneTreeModel;
class SelectionState;
struct SceneDocument;

// File > Import... and Export Mesh...: meshes of other programs (and the program's own file)
// brought into the open document or written out of it. An import appends the file's solids
// after those of the document, each with its tree node as an extruded one gets, as one undo
// step; a file that cannot be read changes nothing. An export writes the whole document, or
// only the selected solids when the user says so; it changes neither the document nor its
// clean point.
class MeshCommands {
public:
    MeshCommands(EditorPort& editor, SceneDocument& document, const SelectionState& selection,
                 SceneTreeModel& tree, FileSystem& files, CommonDialogNoOCX& fileDialog)
        : editor_(editor), document_(document), selection_(selection), tree_(tree),
          meshFiles_(files), fileDialog_(fileDialog) {}

    // Makes the File menu's import and export items run these commands.
    void bind(MainMenu& menus);

    void Import();
    void ExportMesh();

private:
    // The solids to export: the selected ones in document order when the user chooses them.
    ObjectList solidsToExport() const;

    EditorPort& editor_;
    SceneDocument& document_;
    const SelectionState& selection_;
    SceneTreeModel& tree_;
    MeshFiles meshFiles_;
    CommonDialogNoOCX& fileDialog_;
};
