#pragma once

#include "app/frmTolvane.h"

#include <QKeyEvent>
#include <optional>

// The desktop's key code of a key press: letters and digits are their upper-case character
// codes, as Qt's are; both Enter keys are 13 and Delete is 46. Nothing for a modifier pressed
// alone (Shift, Ctrl, Alt, ...): it means nothing to the window's logic, and the menu bar's
// Alt must not wait for a redraw.
inline std::optional<int> desktopKeyCode(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
        return std::nullopt;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Delete:
        return frmTolvane::keyCodeDelete;
    default:
        return event.key();
    }
}
