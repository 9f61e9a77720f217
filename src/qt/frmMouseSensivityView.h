#pragma once

#include "app/frmMouseSensivity.h"

#include <QDialog>

class QLabel;
class QScrollBar;

// Shows the mouse sensitivity dialog's logic (frmMouseSensivity): the scroll bar between
// "Dull" and "Nervous", the percentage label and the Accept and Cancel menu items (Enter
// accepts, Escape cancels). The modal host runs it; it closes when the logic says so.
class frmMouseSensivityView : public QDialog {
    Q_OBJECT
public:
    explicit frmMouseSensivityView(frmMouseSensivity& form, QWidget* parent = nullptr);

    QScrollBar& scrollBar() { return *HScroll1_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void closeIfDone();

    frmMouseSensivity& form_;
    QScrollBar* HScroll1_;
    QLabel* lblSens_;
};
