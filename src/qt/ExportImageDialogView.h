#pragma once

#include "app/ExportImageDialog.h"
#include "qt/ModalDialogView.h"

class QComboBox;
class QLineEdit;
class QRadioButton;

// Shows the Export Image dialog (ExportImageDialog): the picture to take, its size on the
// screen or a typed width and height, Export and Cancel.
class ExportImageDialogView : public ModalDialogView {
    Q_OBJECT
public:
    explicit ExportImageDialogView(ExportImageDialog& form, QWidget* parent = nullptr);

protected:
    void refresh() override;

private:
    ExportImageDialog& form_;
    QComboBox* lstViewport_;
    QRadioButton* optShownSize_;
    QRadioButton* optTypedSize_;
    QLineEdit* txtWidth_;
    QLineEdit* txtHeight_;
};
