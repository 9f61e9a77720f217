#pragma once

#include "modelling/frmSolidProperty.h"
#include "qt/ModalDialogView.h"

#include <vector>

class QCheckBox;
class QLabel;
class QPushButton;
class QScrollBar;

// Shows the solid property dialog (frmSolidProperty): one group per surface property, each
// under its Use check box and enabled with it, Switch Orientation, Accept and Cancel.
class frmSolidPropertyView : public ModalDialogView {
    Q_OBJECT
public:
    explicit frmSolidPropertyView(frmSolidProperty& form, QWidget* parent = nullptr);

protected:
    void refresh() override;

private:
    // A check box of the logic and the widget that shows it.
    struct Check {
        CheckBoxState* state;
        QCheckBox* box;
    };
    // A label of the logic and the widget that shows whether it is enabled.
    struct Label {
        const LabelState* state;
        QLabel* label;
    };
    struct Button {
        const ButtonState* state;
        QPushButton* button;
    };

    frmSolidProperty& form_;
    std::vector<Check> checks_;
    std::vector<Label> labels_;
    std::vector<Button> buttons_;
    QLabel* picAmbColor_;
    QLabel* picDifColor_;
    QScrollBar* HScrollSpecK_;
    QLabel* lblReflection_ = nullptr;
    QScrollBar* HScrollSpecN_;
    QLabel* lblIntensity_ = nullptr;
};
