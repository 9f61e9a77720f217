#include "qt/ModalDialogView.h"

#include "app/EventGuard.h"
#include "platform/ModalDialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <utility>

ModalDialogView::ModalDialogView(ModalDialog& form, std::string cancelName, QWidget* parent)
    : QDialog(parent), form_(form), cancelName_(std::move(cancelName)) {
    setWindowTitle(QString::fromStdString(form_.caption()));
}

void ModalDialogView::reject() {
    act([this] { form_.press(cancelName_); });
}

void ModalDialogView::act(const std::function<void()>& action) {
    EventGuard::run(action);
    if (form_.isClosed()) {
        done(QDialog::Accepted);
    } else {
        refresh();
    }
}

QDialogButtonBox* ModalDialogView::commandButtons(const ButtonState& accept,
                                                  const std::string& acceptName,
                                                  const ButtonState& cancel) {
    auto* box = new QDialogButtonBox(this);
    QPushButton* acceptButton =
        box->addButton(QString::fromStdString(accept.Caption), QDialogButtonBox::AcceptRole);
    acceptButton->setObjectName(QString::fromStdString(acceptName));
    acceptButton->setDefault(true);
    QPushButton* cancelButton =
        box->addButton(QString::fromStdString(cancel.Caption), QDialogButtonBox::RejectRole);
    cancelButton->setObjectName(QString::fromStdString(cancelName_));
    connect(acceptButton, &QPushButton::clicked, this,
            [this, acceptName] { act([this, &acceptName] { form_.press(acceptName); }); });
    connect(cancelButton, &QPushButton::clicked, this, &ModalDialogView::reject);
    return box;
}
