#pragma once

#include "modelling/frmOrientation.h"
#include "qt/ModalDialogView.h"

class QRadioButton;

// Shows the orientation dialog (frmOrientation): the guess, the two options in their frame,
// Confirm and Cancel.
class frmOrientationView : public ModalDialogView {
    Q_OBJECT
public:
    explicit frmOrientationView(frmOrientation& form, QWidget* parent = nullptr);

protected:
    void refresh() override;

private:
    frmOrientation& form_;
    QRadioButton* optCW_;
    QRadioButton* optCCW_;
};
