#pragma once

#include "modelling/frmFaceProperty.h"
#include "qt/ModalDialogView.h"

class QCheckBox;
class QLabel;
class QListWidget;
class QScrollBar;

// Shows the face property dialog (frmFaceProperty): the colour swatches with their Select
// buttons and the specular bars beside their labels on the left, the point indices with
// Add, Modify and Remove on the right, Switch Orientation, Accept and Cancel.
class frmFacePropertyView : public ModalDialogView {
    Q_OBJECT
public:
    explicit frmFacePropertyView(frmFaceProperty& form, QWidget* parent = nullptr);

protected:
    void refresh() override;

private:
    frmFaceProperty& form_;
    QLabel* picAmbColor_;
    QLabel* picDifColor_;
    QScrollBar* HScrollSpecK_;
    QLabel* lblReflection_;
    QScrollBar* HScrollSpecN_;
    QLabel* lblIntensity_;
    QListWidget* listPointIndex_;
    QCheckBox* OrientSwitch_;
};
