#pragma once

class EditorPort;
class MainMenu;
class UndoHistory;
struct SceneDocument;

// The Edit menu: "&Undo" takes the history's last step back, "&Redo" makes the next one
// again. After either the tree is made anew, every viewport redrawn, and the status line
// names the step ("Undid Extrude"); the selection forgets what left the document when the
// command ends, as after every command.
namespace EditCommands {

void bind(MainMenu& menus, EditorPort& editor, SceneDocument& document);
// Enables the two items when there is a step to take and names it in their status tips.
void refresh(MainMenu& menus, const UndoHistory& history);

} // namespace EditCommands
