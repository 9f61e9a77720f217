#include "qt/frmAdditionalExtrusionsView.h"

#include "app/EventGuard.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

frmAdditionalExtrusionsView::frmAdditionalExtrusionsView(frmAdditionalExtrusions& form,
                                                         QWidget* parent)
    : QDialog(parent), form_(form), List1_(new QListWidget(this)) {
    setWindowTitle(QString::fromStdString(form_.caption()));
    for (const std::string& item : form_.List1.items) {
        List1_->addItem(QString::fromStdString(item));
    }
    List1_->setMinimumSize(160, 80);
    connect(List1_, &QListWidget::currentRowChanged, this, [this](int row) {
        EventGuard::run([this, row] { form_.pickListLine("List1", row); });
    });
    connect(List1_, &QListWidget::itemActivated, this, [this] { press("mnuSelect"); });

    auto* buttons = new QDialogButtonBox(this);
    auto* mnuSelect = buttons->addButton(QString::fromStdString(form_.mnuSelect.Caption),
                                         QDialogButtonBox::AcceptRole);
    auto* mnuCancel = buttons->addButton(QString::fromStdString(form_.mnuCancel.Caption),
                                         QDialogButtonBox::RejectRole);
    mnuSelect->setDefault(true);
    connect(mnuSelect, &QPushButton::clicked, this, [this] { press("mnuSelect"); });
    connect(mnuCancel, &QPushButton::clicked, this, &frmAdditionalExtrusionsView::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(List1_);
    layout->addWidget(buttons);
}

void frmAdditionalExtrusionsView::reject() {
    press("mnuCancel");
}

void frmAdditionalExtrusionsView::press(const std::string& name) {
    EventGuard::run([this, &name] { form_.press(name); });
    if (form_.isClosed()) {
        QDialog::accept();
    }
}
