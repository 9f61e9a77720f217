#include "qt/frmProfilePropertyView.h"

#include "app/EventGuard.h"
#include "qt/AccessKey.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <iterator>

frmProfilePropertyView::frmProfilePropertyView(frmProfileProperty& form, QWidget* parent)
    : ModalDialogView(form, "mnuCancel", parent), form_(form),
      listPointIndex_(new QListWidget(this)) {
    auto* Label4 = new QLabel(withAccessKey(form_.Label4.Caption, 'P'), this);
    Label4->setBuddy(listPointIndex_);
    listPointIndex_->setObjectName("listPointIndex");
    listPointIndex_->setMinimumSize(220, 160);
    connect(listPointIndex_, &QListWidget::currentRowChanged, this, [this](int row) {
        EventGuard::run([this, row] { form_.pickListLine("listPointIndex", row); });
    });

    auto* buttons = new QVBoxLayout;
    const std::pair<const ButtonState*, const char*> commands[] = {{&form_.cmdAdd, "cmdAdd"},
                                                                   {&form_.cmdModify, "cmdModify"},
                                                                   {&form_.cmdRemove, "cmdRemove"},
                                                                   {&form_.cmdUp, "cmdUp"},
                                                                   {&form_.cmdDown, "cmdDown"}};
    const char keys[] = {'d', 'M', 'R', 'U', 'o'};
    for (size_t i = 0; i < std::size(commands); ++i) {
        const auto [state, name] = commands[i];
        auto* button = new QPushButton(withAccessKey(state->Caption, keys[i]), this);
        button->setObjectName(name);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [this, name = name] { act([this, name] { form_.press(name); }); });
        buttons->addWidget(button);
    }
    buttons->addStretch();

    auto* checks = new QVBoxLayout;
    const std::pair<CheckBoxState*, const char*> boxes[] = {
        {&form_.chkSwitchOrientation, "chkSwitchOrientation"}, {&form_.chkVisible, "chkVisible"}};
    const char boxKeys[] = {'S', 'V'};
    for (size_t i = 0; i < std::size(boxes); ++i) {
        const auto [state, name] = boxes[i];
        auto* box = new QCheckBox(withAccessKey(state->Caption, boxKeys[i]), this);
        box->setObjectName(name);
        box->setChecked(state->Value);
        connect(box, &QCheckBox::toggled, this, [this, name = name](bool checked) {
            EventGuard::run([this, name, checked] { form_.setChecked(name, checked); });
        });
        checks->addWidget(box);
    }

    auto* grid = new QGridLayout;
    grid->addWidget(Label4, 0, 0);
    grid->addWidget(listPointIndex_, 1, 0);
    grid->addLayout(buttons, 1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(checks);
    layout->addWidget(commandButtons(form_.mnuAccept, "mnuAccept", form_.mnuCancel));
    refresh();
}

void frmProfilePropertyView::refresh() {
    // Filling the list is not the user picking a line.
    const QSignalBlocker blocker(listPointIndex_);
    listPointIndex_->clear();
    for (const std::string& line : form_.listPointIndex.items) {
        listPointIndex_->addItem(QString::fromStdString(line));
    }
    listPointIndex_->setCurrentRow(form_.listPointIndex.ListIndex);
}
