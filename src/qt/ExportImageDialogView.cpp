#include "qt/ExportImageDialogView.h"

#include "app/EventGuard.h"
#include "qt/AccessKey.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

ExportImageDialogView::ExportImageDialogView(ExportImageDialog& form, QWidget* parent)
    : ModalDialogView(form, "cmdCancel", parent), form_(form), lstViewport_(new QComboBox(this)),
      optShownSize_(new QRadioButton(withAccessKey(form.optShownSize.Caption, 'S'), this)),
      optTypedSize_(new QRadioButton(withAccessKey(form.optTypedSize.Caption, 'O'), this)),
      txtWidth_(new QLineEdit(this)), txtHeight_(new QLineEdit(this)) {
    lstViewport_->setObjectName("lstViewport");
    for (const std::string& item : form_.lstViewport.items) {
        lstViewport_->addItem(QString::fromStdString(item));
    }
    connect(lstViewport_, &QComboBox::activated, this,
            [this](int line) { act([this, line] { form_.pickListLine("lstViewport", line); }); });
    for (const auto& [button, name] :
         {std::pair{optShownSize_, "optShownSize"}, std::pair{optTypedSize_, "optTypedSize"}}) {
        button->setObjectName(name);
        connect(button, &QRadioButton::clicked, this,
                [this, name = name] { act([this, name] { form_.chooseOption(name); }); });
    }

    auto* rows = new QFormLayout;
    const auto addRow = [&](const LabelState& label, char key, QWidget* field) {
        auto* text = new QLabel(withAccessKey(label.Caption, key), this);
        text->setBuddy(field);
        rows->addRow(text, field);
    };
    addRow(form_.lblViewport, 'V', lstViewport_);
    rows->addRow(optShownSize_);
    rows->addRow(optTypedSize_);
    for (const auto& [field, name] :
         {std::pair{txtWidth_, "txtWidth"}, std::pair{txtHeight_, "txtHeight"}}) {
        field->setObjectName(name);
        // Typing changes nothing else that the view shows.
        connect(field, &QLineEdit::textEdited, this, [this, name = name](const QString& text) {
            EventGuard::run([this, name, &text] { form_.typeText(name, text.toStdString()); });
        });
    }
    addRow(form_.lblWidth, 'W', txtWidth_);
    addRow(form_.lblHeight, 'H', txtHeight_);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(rows);
    layout->addWidget(commandButtons(form_.cmdExport, "cmdExport", form_.cmdCancel));
    refresh();
}

void ExportImageDialogView::refresh() {
    lstViewport_->setCurrentIndex(form_.lstViewport.ListIndex);
    optShownSize_->setChecked(form_.optShownSize.Value);
    optTypedSize_->setChecked(form_.optTypedSize.Value);
    for (const auto& [field, state] :
         {std::pair{txtWidth_, &form_.txtWidth}, std::pair{txtHeight_, &form_.txtHeight}}) {
        const QString text = QString::fromStdString(state->Text);
        if (field->text() != text) {
            field->setText(text);
        }
        field->setEnabled(state->Enabled);
        if (state->Focused) {
            field->setFocus();
            field->selectAll();
            state->Focused = false;
        }
    }
}
