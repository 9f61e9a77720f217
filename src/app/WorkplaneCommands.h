#pragma once

class ColorChooser;
class MainMenu;
class ModalHost;
class SceneTreeModel;
struct SceneDocument;

// The Create menu's workplane command: "&Parameter Creation" asks for a new workplane's
// size, rotations, offset and colour and adds it to the document with its tree node.
// "&Graphic Creation" does nothing.
namespace WorkplaneCommands {

void bind(MainMenu& menus, ModalHost& dialogs, ColorChooser& colors, SceneDocument& document,
          SceneTreeModel& tree);

} // namespace WorkplaneCommands
