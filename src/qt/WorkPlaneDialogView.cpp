#include "qt/WorkPlaneDialogView.h"

#include "app/EventGuard.h"
#include "geometry/PackedColor.h"
#include "modelling/WorkPlaneDialog.h"
#include "qt/AccessKey.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

struct FieldRow {
    const char* name;
    TextBoxState WorkPlaneDialog::*state;
    LabelState WorkPlaneDialog::*label;
    char key;
};

constexpr FieldRow fieldRows[] = {
    {"Text1", &WorkPlaneDialog::Text1, &WorkPlaneDialog::lblSize, 'S'},
    {"Text2", &WorkPlaneDialog::Text2, &WorkPlaneDialog::lblXRotation, 'X'},
    {"Text3", &WorkPlaneDialog::Text3, &WorkPlaneDialog::lblYRotation, 'Y'},
    {"Text5", &WorkPlaneDialog::Text5, &WorkPlaneDialog::lblOffset, 'O'},
};

} // namespace

WorkPlaneDialogView::WorkPlaneDialogView(WorkPlaneDialog& form, QWidget* parent)
    : ModalDialogView(form, "mnuCancel", parent), form_(form), rows_(new QFormLayout),
      picWPColor_(new QLabel(this)), Command1_(new QPushButton(this)) {
    for (size_t i = 0; i < fields_.size(); ++i) {
        const FieldRow& row = fieldRows[i];
        auto* field = new QLineEdit(QString::fromStdString((form_.*row.state).Text), this);
        field->setObjectName(row.name);
        field->setMinimumWidth(160);
        // Typing changes nothing else that the view shows.
        connect(field, &QLineEdit::textEdited, this, [this, name = row.name](const QString& text) {
            EventGuard::run([this, name, &text] { form_.typeText(name, text.toStdString()); });
        });
        auto* label = new QLabel(withAccessKey((form_.*row.label).Caption, row.key), this);
        label->setBuddy(field);
        rows_->addRow(label, field);
        fields_[i] = field;
    }

    picWPColor_->setObjectName("picWPColor");
    picWPColor_->setFrameStyle(QFrame::Box | QFrame::Plain);
    picWPColor_->setMinimumSize(48, 22);
    picWPColor_->setAutoFillBackground(true);
    Command1_->setObjectName("Command1");
    Command1_->setText(withAccessKey(form_.Command1.Caption, 'l'));
    Command1_->setAutoDefault(false);
    connect(Command1_, &QPushButton::clicked, this,
            [this] { act([this] { form_.press("Command1"); }); });
    auto* color = new QHBoxLayout;
    color->addWidget(picWPColor_, 1);
    color->addWidget(Command1_);
    rows_->addRow(QString::fromStdString(form_.lblColor.Caption), color);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(rows_);
    layout->addWidget(commandButtons(form_.mnuAccept, "mnuAccept", form_.mnuCancel));
    refresh();
    fields_[0]->setFocus();
}

void WorkPlaneDialogView::refresh() {
    for (size_t i = 0; i < fields_.size(); ++i) {
        TextBoxState& state = form_.*fieldRows[i].state;
        const QString text = QString::fromStdString(state.Text);
        if (fields_[i]->text() != text) {
            fields_[i]->setText(text);
        }
        // The focus goes to a refused field once; from there the user moves it, and a
        // later refresh (after Select) leaves it where it is.
        if (state.Focused) {
            fields_[i]->setFocus();
            state.Focused = false;
        }
    }
    const PackedColor channels = PackedColor::split(form_.picWPColor.BackColor);
    QPalette palette = picWPColor_->palette();
    palette.setColor(QPalette::Window, QColor(channels.red, channels.green, channels.blue));
    picWPColor_->setPalette(palette);
}
