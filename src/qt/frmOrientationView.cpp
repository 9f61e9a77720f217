#include "qt/frmOrientationView.h"

#include "qt/AccessKey.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

frmOrientationView::frmOrientationView(frmOrientation& form, QWidget* parent)
    : ModalDialogView(form, "mnuCancel", parent), form_(form),
      optCW_(new QRadioButton(withAccessKey(form.optCW.Caption, 'w'), this)),
      optCCW_(new QRadioButton(withAccessKey(form.optCCW.Caption, 't'), this)) {
    auto* guess = new QFormLayout;
    guess->addRow(QString::fromStdString(form_.Label1.Caption),
                  new QLabel(QString::fromStdString(form_.lblGuessOrientation.Caption), this));

    auto* Frame1 = new QGroupBox(QString::fromStdString(form_.Frame1.Caption), this);
    auto* options = new QVBoxLayout(Frame1);
    for (const auto& [button, name] : {std::pair{optCW_, "optCW"}, std::pair{optCCW_, "optCCW"}}) {
        button->setObjectName(name);
        options->addWidget(button);
        connect(button, &QRadioButton::clicked, this,
                [this, name = name] { act([this, name] { form_.chooseOption(name); }); });
    }

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(guess);
    layout->addWidget(Frame1);
    layout->addWidget(commandButtons(form_.mnuConfirm, "mnuConfirm", form_.mnuCancel));
    refresh();
}

void frmOrientationView::refresh() {
    // Neither is checked while an unknown guess waits for the user's choice.
    optCW_->setChecked(form_.optCW.Value);
    optCCW_->setChecked(form_.optCCW.Value);
}
