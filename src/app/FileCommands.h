#pragma once

class CommonDialogNoOCX;
class MainMenu;
class SceneTreeModel;
class SelectionState;
class TavrinMeshIO;
class ViewportSet;
class WindowFrame;
class EditorPort;
struct SceneDocument;

// The File menu's commands: a new document, opening and saving the mesh file, exporting a
// viewport's picture, and leaving the program.
class FileCommands {
public:
    FileCommands(EditorPort& editor, SceneDocument& document, SelectionState& selection,
                 SceneTreeModel& tree, TavrinMeshIO& meshIO, const ViewportSet& viewports,
                 CommonDialogNoOCX& fileDialog, WindowFrame& frame)
        : editor_(editor), document_(document), selection_(selection), tree_(tree), meshIO_(meshIO),
          viewports_(viewports), fileDialog_(fileDialog), frame_(frame) {}

    // Makes the File menu's items run these commands.
    void bind(MainMenu& menus);

    void New();
    void Open();
    void Save();
    void ExportToBitmap();

private:
    // Export To Bitmap up to the save; the command sets the default pointer after it.
    void saveViewportBitmap();

    EditorPort& editor_;
    SceneDocument& document_;
    SelectionState& selection_;
    SceneTreeModel& tree_;
    TavrinMeshIO& meshIO_;
    const ViewportSet& viewports_;
    CommonDialogNoOCX& fileDialog_;
    WindowFrame& frame_;
};
