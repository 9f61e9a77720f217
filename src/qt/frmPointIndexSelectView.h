#pragma once

#include "modelling/frmPointIndexSelect.h"
#include "qt/ModalDialogView.h"

class QListWidget;

// Shows the point picker (frmPointIndexSelect): the list of points, Select (the default
// button, also a double-click on a line) and Cancel.
class frmPointIndexSelectView : public ModalDialogView {
    Q_OBJECT
public:
    explicit frmPointIndexSelectView(frmPointIndexSelect& form, QWidget* parent = nullptr);

protected:
    void refresh() override;

private:
    frmPointIndexSelect& form_;
    QListWidget* List1_;
};
