#pragma once

class MainMenu;
class EditorPort;
class ViewportSet;

// The commands that change how the viewports show the document: the layout, projection,
// back-face removal, wireframe, grid and axes, and the pop-up's view of one viewport.
namespace ViewCommands {

// The bar's items act on every viewport and redraw; the pop-up's act on the viewport last
// right-clicked only, and the press that opened the menu redraws.
void bind(MainMenu& menus, EditorPort& editor, ViewportSet& viewports);

} // namespace ViewCommands
