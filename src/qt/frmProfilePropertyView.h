#pragma once

#include "modelling/frmProfileProperty.h"
#include "qt/ModalDialogView.h"

class QListWidget;

// Shows the profile property dialog (frmProfileProperty): the point list with its buttons
// beside it, Switch Orientation and Visible, Accept and Cancel.
class frmProfilePropertyView : public ModalDialogView {
    Q_OBJECT
public:
    explicit frmProfilePropertyView(frmProfileProperty& form, QWidget* parent = nullptr);

protected:
    void refresh() override;

private:
    frmProfileProperty& form_;
    QListWidget* listPointIndex_;
};
