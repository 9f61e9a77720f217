#pragma once

#include "app/frmTolvane.h"

#include <QMainWindow>

// Shows the main window's logic (frmTolvane) in a Qt main window.
class frmTolvaneView : public QMainWindow {
    Q_OBJECT
public:
    explicit frmTolvaneView(frmTolvane& form, QWidget* parent = nullptr);

private:
    frmTolvane& form_;
};
