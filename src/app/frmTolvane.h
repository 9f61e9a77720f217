#pragma once

#include <string>

// The main window's logic: owns the document and implements the operations that the
// menus, the mouse modes and the dialogs call. The Qt view (qt/frmTolvaneView) shows it.
class frmTolvane {
public:
    std::string caption() const { return "Korvan Version 2.0"; }
};
