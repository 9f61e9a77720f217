#include "app/MeshCommands.h"

#include "app/EditorPort.h"
#include "app/ListChange.h"
#include "app/MainMenu.h"
#include "app/SceneDocument.h"
#include "app/SceneTreeModel.h"
#include "app/SelectionState.h"
#include "app/StatusText.h"
#include "app/UndoHistory.h"
#include "io/CommonDialogNoOCX.h"
#include "platform/Prompts.h"
#include "scene/Transformed3d.h"

#include <algorithm>

namespace {

const std::string importTitle = "Import Mesh";
const std::string exportTitle = "Export Mesh";

// The Qt chooser adds each pattern to its description, as "Meshes (*.obj *.ply *.tvm)".
const std::string importFilter =
    "Meshes|*.obj;*.ply;*.tvm;*.stl;*.off;*.gltf;*.glb;*.3mf|Wavefront OBJ|*.obj|"
    "Polygon File|*.ply|STL|*.stl|Object File Format|*.off|glTF 2.0|*.gltf;*.glb|"
    "3D Manufacturing Format|*.3mf|Tavrin Mesh File|*.tvm";
const std::string exportFilter = "Wavefront OBJ|*.obj|Polygon File|*.ply|Binary STL|*.stl|"
                                 "3D Manufacturing Format|*.3mf|Tavrin Mesh File|*.tvm";

std::string withoutFolder(const std::string& path) {
    return path.substr(path.find_last_of('/') + 1); // npos + 1 is 0
}

// One line for a file that could not be read or written: the file at fault and why.
std::string failure(const std::string& doing, const MeshFiles::Error& error) {
    const std::string why = *error.what() != 0 ? error.what() : error.code().message();
    return "Cannot " + doing + " " + error.file() + ": " + why + ".";
}

} // namespace

void MeshCommands::bind(MainMenu& menus) {
    menus.bind("mnuFileImport", [this] { Import(); });
    menus.bind("mnuFileExportMesh", [this] { ExportMesh(); });
}

void MeshCommands::Import() {
    const std::string name = fileDialog_.OpenFile(importFilter, importTitle);
    if (name.empty()) {
        return;
    }
    ObjectList objects;
    try {
        objects = meshFiles_.open(name);
    } catch (const MeshFiles::Error& error) {
        showMessage(failure("import", error), importTitle, MessageIcon::Critical);
        return;
    }
    std::vector<std::unique_ptr<DocumentCommand>> made;
    for (const auto& object : objects) {
        made.push_back(ListChange<Transformed3d>::insert(document_, object, 0));
        tree_.addSolidNode(object, static_cast<int32_t>(document_.solids.size()), "Solid");
    }
    editor_.history().push("Import " + withoutFolder(name), std::move(made));
    editor_.redrawAllViewports();
    editor_.fileUsed(name);
    editor_.showStatus("Imported " + withoutFolder(name) + " (" +
                       StatusText::solidsAndFaces(objects) + ")");
}

ObjectList MeshCommands::solidsToExport() const {
    const auto& selected = selection_.selectedSolids;
    if (selected.empty()) {
        return document_.solids;
    }
    const std::string question = "Export only the selected solids (" +
                                 std::to_string(selected.size()) +
                                 ")?  No exports every solid of the document.";
    if (activePrompts().messageBox(question, exportTitle, MessageIcon::None,
                                   MessageButtons::YesNo) != MessageAnswer::Yes) {
        return document_.solids;
    }
    ObjectList chosen;
    std::copy_if(document_.solids.begin(), document_.solids.end(), std::back_inserter(chosen),
                 [&](const auto& object) {
                     return std::find(selected.begin(), selected.end(), object) != selected.end();
                 });
    return chosen;
}

void MeshCommands::ExportMesh() {
    const ObjectList objects = solidsToExport();
    const std::string name = fileDialog_.OpenFile(exportFilter, exportTitle);
    if (name.empty()) {
        return;
    }
    if (!MeshFiles::formatOf(name)) {
        showMessage("Cannot export " + name +
                        ": the name must end in .obj, .ply, .stl, .3mf or .tvm.",
                    exportTitle, MessageIcon::Critical);
        return;
    }
    try {
        meshFiles_.save(objects, name, false);
    } catch (const MeshFiles::Error& error) {
        showMessage(failure("export", error), exportTitle, MessageIcon::Critical);
        return;
    }
    editor_.showStatus("Exported " + withoutFolder(name) + " (" + std::to_string(objects.size()) +
                       (objects.size() == 1 ? " solid)" : " solids)"));
}
