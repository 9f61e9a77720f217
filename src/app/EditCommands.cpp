#include "app/EditCommands.h"

#include "app/EditorPort.h"
#include "app/MainMenu.h"
#include "app/UndoHistory.h"

#include <string>

namespace {

// Undo (or redo) of the step the history offers, then what every change of the document
// needs; nothing when there is no step.
void takeStep(EditorPort& editor, SceneDocument& document, bool back) {
    UndoHistory& history = editor.history();
    const std::string step = back ? history.undoName() : history.redoName();
    if (back ? !history.canUndo() : !history.canRedo()) {
        return;
    }
    back ? history.undo(document) : history.redo(document);
    editor.rebuildTree();
    editor.redrawAllViewports();
    editor.showStatus((back ? "Undid " : "Redid ") + step);
}

// The item's enabled state and status tip for the step it would take ("" for none).
void show(MenuItem& item, const std::string& step, const char* verb, const char* nothing) {
    item.setEnabled(!step.empty());
    item.setStatusTip(step.empty() ? nothing : verb + step);
}

} // namespace

void EditCommands::bind(MainMenu& menus, EditorPort& editor, SceneDocument& document) {
    EditorPort* e = &editor;
    SceneDocument* d = &document;
    menus.bind("mnuEditUndo", [e, d] { takeStep(*e, *d, true); });
    menus.bind("mnuEditRedo", [e, d] { takeStep(*e, *d, false); });
}

void EditCommands::refresh(MainMenu& menus, const UndoHistory& history) {
    show(menus.item("mnuEditUndo"), history.undoName(), "Undo ", "Nothing to undo");
    show(menus.item("mnuEditRedo"), history.redoName(), "Redo ", "Nothing to redo");
}
