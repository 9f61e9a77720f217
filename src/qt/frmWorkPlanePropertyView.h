#pragma once

#include "modelling/frmWorkPlaneProperty.h"
#include "qt/WorkPlaneDialogView.h"

// Shows the workplane property dialog (frmWorkPlaneProperty): the shared rows and Visible.
class frmWorkPlanePropertyView : public WorkPlaneDialogView {
    Q_OBJECT
public:
    explicit frmWorkPlanePropertyView(frmWorkPlaneProperty& form, QWidget* parent = nullptr);
};
