#pragma once

#include "modelling/frmAdditionalExtrusions.h"

#include <QDialog>

class QListWidget;

// Shows the transformation picker's logic (frmAdditionalExtrusions): the list of kinds with
// Select (the default button; a double-click on a kind selects it too) and Cancel (also
// Escape). The picker's three input boxes are the program's prompts.
class frmAdditionalExtrusionsView : public QDialog {
    Q_OBJECT
public:
    explicit frmAdditionalExtrusionsView(frmAdditionalExtrusions& form, QWidget* parent = nullptr);

    void reject() override;

private:
    void press(const std::string& name);

    frmAdditionalExtrusions& form_;
    QListWidget* List1_;
};
