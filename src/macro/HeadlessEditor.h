#pragma once

#include "app/frmTolvane.h"
#include "macro/MacroPlayer.h"

#include <array>

class Canvas;
class UserSource;

// The editor without a screen: the main window's logic on the given canvases, with a macro
// player in the place of everyone who asks the user, loaded as the editor loads it, its client
// area the editor's start-up size. The player's prompts are the program's prompts while it
// lives.
class HeadlessEditor {
public:
    HeadlessEditor(UserSource& source, const std::array<Canvas*, 4>& canvases);
    ~HeadlessEditor();
    HeadlessEditor(const HeadlessEditor&) = delete;
    HeadlessEditor& operator=(const HeadlessEditor&) = delete;

    MacroPlayer player;
    frmTolvane form{player};
};
