#include "qt/frmPointIndexSelectView.h"

#include "app/EventGuard.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

frmPointIndexSelectView::frmPointIndexSelectView(frmPointIndexSelect& form, QWidget* parent)
    : ModalDialogView(form, "mnuCancel", parent), form_(form), List1_(new QListWidget(this)) {
    List1_->setObjectName("List1");
    List1_->setMinimumSize(260, 200);
    connect(List1_, &QListWidget::currentRowChanged, this, [this](int row) {
        EventGuard::run([this, row] { form_.pickListLine("List1", row); });
    });
    connect(List1_, &QListWidget::itemDoubleClicked, this,
            [this] { act([this] { form_.press("mnuSelect"); }); });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(List1_);
    layout->addWidget(commandButtons(form_.mnuSelect, "mnuSelect", form_.mnuCancel));
    refresh();
    List1_->setFocus();
}

void frmPointIndexSelectView::refresh() {
    const QSignalBlocker blocker(List1_);
    if (List1_->count() != static_cast<int>(form_.List1.items.size())) {
        List1_->clear();
        for (const std::string& line : form_.List1.items) {
            List1_->addItem(QString::fromStdString(line));
        }
    }
    List1_->setCurrentRow(form_.List1.ListIndex);
}
