#pragma once

#include "platform/MousePointer.h"

#include <string>

class Canvas;

// The top-level window that shows the main window's logic, for what the logic asks of the
// window as a whole rather than of one canvas.
class WindowFrame {
public:
    virtual ~WindowFrame() = default;

    // The pointer over the whole window: the hourglass while a file is written.
    virtual void setMousePointer(MousePointer pointer) = 0;
    // Shows the window's pop-up menu at a point of the canvas and returns only when the user
    // has chosen an item, whose command has then run, or dismissed the menu.
    virtual void showPopupMenu(Canvas& canvas, int x, int y) = 0;
    // Closes the window, which ends the program without a further question.
    virtual void unload() = 0;
    // The window's title, with "[*]" where the modified marker goes, and whether it shows.
    virtual void setTitle(const std::string& title, bool modified) = 0;
    // A one-line result of a command, at the foot of the window.
    virtual void showStatus(const std::string& text) = 0;
    // The lasting part of the status bar: what the mouse does in the current mode, with the
    // pointer's place while a profile is drawn.
    virtual void showModeHint(const std::string& text) = 0;
    // The file dialog's next question is answered with this path without being shown (a
    // file named on the command line, dropped on the window or chosen from the recent
    // files); an empty path takes such an answer back.
    virtual void answerNextFileDialog(const std::string& path) = 0;
};
