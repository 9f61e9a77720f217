#pragma once

#include "qt/ModalDialogView.h"

#include <array>

class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class WorkPlaneDialog;

// Shows what the two workplane dialogs share (WorkPlaneDialog): the four number fields
// beside their labels, the colour swatch with Select, Accept and Cancel. After a refused
// Accept it shows the emptied field with the keyboard focus in it.
class WorkPlaneDialogView : public ModalDialogView {
    Q_OBJECT
protected:
    WorkPlaneDialogView(WorkPlaneDialog& form, QWidget* parent);

    void refresh() override;

    // The rows of labelled fields, for a dialog's own rows below the shared ones.
    QFormLayout& rows() { return *rows_; }
    // The last control of the shared rows in tab order.
    QPushButton& selectButton() { return *Command1_; }

private:
    WorkPlaneDialog& form_;
    QFormLayout* rows_;
    std::array<QLineEdit*, 4> fields_;
    QLabel* picWPColor_;
    QPushButton* Command1_;
};
