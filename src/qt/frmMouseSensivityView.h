#pragma once

#include "app/frmMouseSensivity.h"

#include <QDialog>

class QLabel;
class QScrollBar;

// Shows the mouse sensitivity dialog's logic (frmMouseSensivity): the scroll bar between
// "Dull" and "Nervous", the percentage label and the Accept and Cancel menu items. Run it
// with exec(); it closes when the logic says so.
class frmMouseSensivityView : public QDialog {
    Q_OBJECT
public:
    explicit frmMouseSensivityView(frmMouseSensivity& form, QWidget* parent = nullptr);

private:
    void closeIfDone(bool accepted);

    frmMouseSensivity& form_;
    QScrollBar* HScroll1_;
    QLabel* lblSens_;
};
