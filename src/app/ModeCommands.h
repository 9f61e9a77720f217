#pragma once

class EditorPort;
class MainMenu;
class SelectionState;

// The commands that switch the mouse mode (Movement and Selectors, on the bar and in the
// pop-up) and Deselect All. A switch only installs a new mode: the pointer follows at the
// next movement, and nothing is redrawn.
namespace ModeCommands {

void bind(MainMenu& menus, EditorPort& editor, SelectionState& selection);

} // namespace ModeCommands
