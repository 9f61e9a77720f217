#include "qt/frmSolidPropertyView.h"

#include "app/EventGuard.h"
#include "qt/AccessKey.h"
#include "qt/SurfaceWidgets.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

frmSolidPropertyView::frmSolidPropertyView(frmSolidProperty& form, QWidget* parent)
    : ModalDialogView(form, "mnuCancel", parent), form_(form),
      picAmbColor_(newSwatch("picAmbColor", this)), picDifColor_(newSwatch("picDifColor", this)),
      HScrollSpecK_(newScrollBar("HScrollSpecK", form.surface.HScrollSpecK, this)),
      HScrollSpecN_(newScrollBar("HScrollSpecN", form.surface.HScrollSpecN, this)) {
    auto* grid = new QGridLayout;
    // The groups' controls stand indented under their check boxes.
    grid->setColumnMinimumWidth(0, 16);
    int row = 0;
    std::vector<QWidget*> order;
    const auto check = [&](CheckBoxState& state, const char* name, char key) {
        auto* box = new QCheckBox(withAccessKey(state.Caption, key), this);
        box->setObjectName(name);
        connect(box, &QCheckBox::clicked, this, [this, name](bool checked) {
            act([this, name, checked] { form_.setChecked(name, checked); });
        });
        checks_.push_back({&state, box});
        order.push_back(box);
        grid->addWidget(box, row++, 0, 1, 4);
    };
    const auto label = [&](const LabelState& state, const QString& text) {
        auto* widget = new QLabel(text, this);
        labels_.push_back({&state, widget});
        return widget;
    };
    const auto colorRow = [&](const LabelState& caption, char key, QLabel* swatch,
                              const ButtonState& select, const char* selectName) {
        auto* button = new QPushButton(QString::fromStdString(select.Caption), this);
        button->setObjectName(selectName);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [this, selectName] { act([this, selectName] { form_.press(selectName); }); });
        buttons_.push_back({&select, button});
        order.push_back(button);
        // The colour's label is the access key of its Select button.
        QLabel* text = label(caption, withAccessKey(caption.Caption, key));
        text->setBuddy(button);
        grid->addWidget(text, row, 1);
        grid->addWidget(swatch, row, 2);
        grid->addWidget(button, row++, 3);
    };
    const auto scaleRows = [&](const LabelState& least, const LabelState& value,
                               const LabelState& most, QScrollBar* bar, const char* barName) {
        QLabel* valueLabel = label(value, QString());
        grid->addWidget(valueLabel, row++, 1, 1, 3);
        auto* scale = new QHBoxLayout;
        scale->addWidget(label(least, QString::fromStdString(least.Caption)));
        scale->addWidget(bar, 1);
        scale->addWidget(label(most, QString::fromStdString(most.Caption)));
        grid->addLayout(scale, row++, 1, 1, 3);
        order.push_back(bar);
        return valueLabel;
        connect(bar, &QScrollBar::valueChanged, this, [this, barName](int position) {
            act([this, barName, position] { form_.moveScrollBar(barName, position); });
        });
    };

    check(form_.surface.useAmbient, "useAmbient", 'b');
    colorRow(form_.surface.lblAmbColor, 'm', picAmbColor_, form_.surface.cmdColorSelect,
             "cmdColorSelect");
    check(form_.surface.useDiffuse, "useDiffuse", 'D');
    colorRow(form_.surface.lblDifColor, 'u', picDifColor_, form_.surface.cmdColorSelect2,
             "cmdColorSelect2");
    check(form_.surface.UseSpecularK, "UseSpecularK", 'f');
    lblReflection_ = scaleRows(form_.surface.lblReflectionLeast, form_.surface.lblReflection,
                               form_.surface.lblReflectionMost, HScrollSpecK_, "HScrollSpecK");
    check(form_.surface.useSpecularN, "useSpecularN", 'I');
    lblIntensity_ = scaleRows(form_.surface.lblIntensityLeast, form_.surface.lblIntensity,
                              form_.surface.lblIntensityMost, HScrollSpecN_, "HScrollSpecN");
    check(form_.OrientSwitch, "OrientSwitch", 'w');

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    QDialogButtonBox* commands = commandButtons(form_.mnuAccept, "mnuAccept", form_.mnuCancel);
    layout->addWidget(commands);
    for (QAbstractButton* command : commands->buttons()) {
        order.push_back(command);
    }
    for (size_t i = 0; i + 1 < order.size(); ++i) {
        setTabOrder(order[i], order[i + 1]);
    }
    refresh();
}

void frmSolidPropertyView::refresh() {
    for (const Check& check : checks_) {
        check.box->setChecked(check.state->Value);
        check.box->setEnabled(check.state->Enabled);
    }
    for (const Label& label : labels_) {
        label.label->setEnabled(label.state->Enabled);
    }
    lblReflection_->setText(QString::fromStdString(form_.surface.lblReflection.Caption));
    lblIntensity_->setText(QString::fromStdString(form_.surface.lblIntensity.Caption));
    for (const Button& button : buttons_) {
        button.button->setEnabled(button.state->Enabled);
    }
    showSwatch(*picAmbColor_, form_.surface.picAmbColor);
    showSwatch(*picDifColor_, form_.surface.picDifColor);
    showScrollBar(*HScrollSpecK_, form_.surface.HScrollSpecK);
    showScrollBar(*HScrollSpecN_, form_.surface.HScrollSpecN);
}
