#pragma once

#include <string>

class CommonDialogNoOCX;
class EditorPort;
class MainMenu;
class SceneTreeModel;
class SelectionState;
class TavrinMeshIO;
class ViewportSet;
class WindowFrame;
struct SceneDocument;

// The File menu's commands: a new document, opening and saving the mesh file, exporting a
// viewport's picture, and leaving the program. They also keep the document's file name (the
// one last opened or saved) and, before New, Open and Exit replace a document with unsaved
// changes, ask whether to save them first: a deliberate addition to commands that would
// otherwise lose work without a word. With no unsaved changes each behaves as it always did.
// New and Open start a new undo history; Save and Save As make the saved state its clean
// point.
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
    void SaveAs();
    void ExportToBitmap();
    void Exit();

    // Whether the command that would replace the document may go on: yes without unsaved
    // changes; otherwise the user chooses Save (which must succeed), Discard, or Cancel.
    bool settleUnsavedChanges();
    // The window's title: the file's name, or "Untitled", with the modified marker's place.
    std::string title() const;

private:
    // Save with the given dialog title; true when the file was written.
    bool saveAs(const std::string& dialogTitle);
    // The file's name without its folder, or "Untitled" before the first save.
    std::string shownName() const;

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
    std::string fileName_;
};
