#pragma once

#include <string>

// The main window's logic: owns the document and implements the operations that the
// menus, the mouse modes and the dialogs call. The Qt view (qt/frmTolvaneView) shows it.
class frmTolvane {
public:
    std::string caption() const { return "Korvan Version 2.0"; }

    void setMouseSensivity(float Sensivity) { MouseSensivity = Sensivity; }
    float getMouseSensivity() const { return MouseSensivity; }

private:
    float MouseSensivity = 0.0025f;
};
