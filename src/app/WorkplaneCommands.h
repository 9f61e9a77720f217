#pragma once

class ColorChooser;
class EditorPort;
class MainMenu;
class ModalHost;
class SceneTreeModel;
struct SceneDocument;

// The Create menu's workplane command: "&Parameter Creation" asks for a new workplane's
// size, rotations, offset and colour and adds it to the document with its tree node.
// "&Graphic Creation" does nothing. Each new workplane is a step of the editor's history.
namespace WorkplaneCommands {

void bind(MainMenu& menus, EditorPort& editor, ModalHost& dialogs, ColorChooser& colors,
          SceneDocument& document, SceneTreeModel& tree);

} // namespace WorkplaneCommands
