#pragma once

#include "modelling/frmWorkPlaneParametric.h"
#include "qt/WorkPlaneDialogView.h"

// Shows the workplane creation dialog (frmWorkPlaneParametric).
class frmWorkPlaneParametricView : public WorkPlaneDialogView {
    Q_OBJECT
public:
    explicit frmWorkPlaneParametricView(frmWorkPlaneParametric& form, QWidget* parent = nullptr)
        : WorkPlaneDialogView(form, parent) {}
};
