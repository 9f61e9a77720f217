#include "qt/frmFacePropertyView.h"

#include "app/EventGuard.h"
#include "qt/AccessKey.h"
#include "qt/SurfaceWidgets.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <iterator>
#include <vector>

frmFacePropertyView::frmFacePropertyView(frmFaceProperty& form, QWidget* parent)
    : ModalDialogView(form, "mnuCancel", parent), form_(form),
      picAmbColor_(newSwatch("picAmbColor", this)), picDifColor_(newSwatch("picDifColor", this)),
      HScrollSpecK_(newScrollBar("HScrollSpecK", form.HScrollSpecK, this)),
      lblReflection_(new QLabel(this)),
      HScrollSpecN_(newScrollBar("HScrollSpecN", form.HScrollSpecN, this)),
      lblIntensity_(new QLabel(this)), listPointIndex_(new QListWidget(this)),
      OrientSwitch_(new QCheckBox(withAccessKey(form.OrientSwitch.Caption, 'w'), this)) {
    const auto button = [this](const QString& text, const char* name) {
        auto* widget = new QPushButton(text, this);
        widget->setObjectName(name);
        widget->setAutoDefault(false);
        connect(widget, &QPushButton::clicked, this,
                [this, name] { act([this, name] { form_.press(name); }); });
        return widget;
    };
    // A colour's label is the access key of its Select button.
    auto* colors = new QFormLayout;
    const auto colorRow = [&](const LabelState& label, char key, QLabel* swatch,
                              QPushButton* select) {
        auto* caption = new QLabel(withAccessKey(label.Caption, key), this);
        caption->setBuddy(select);
        auto* row = new QHBoxLayout;
        row->addWidget(swatch, 1);
        row->addWidget(select);
        colors->addRow(caption, row);
    };
    QPushButton* cmdColorSelect =
        button(QString::fromStdString(form_.cmdColorSelect.Caption), "cmdColorSelect");
    QPushButton* Command1 = button(QString::fromStdString(form_.Command1.Caption), "Command1");
    colorRow(form_.lblAmbColor, 'b', picAmbColor_, cmdColorSelect);
    colorRow(form_.lblDifColor, 'f', picDifColor_, Command1);

    auto* specular = new QGroupBox(QString::fromStdString(form_.fraSpecular.Caption), this);
    auto* bars = new QFormLayout(specular);
    auto* coefficient = new QHBoxLayout;
    coefficient->addWidget(new QLabel(QString::fromStdString(form_.lblLeast.Caption), this));
    coefficient->addWidget(HScrollSpecK_, 1);
    coefficient->addWidget(new QLabel(QString::fromStdString(form_.lblMost.Caption), this));
    auto* lblCoefficient = new QLabel(withAccessKey(form_.lblCoefficient.Caption, 'o'), this);
    lblCoefficient->setBuddy(HScrollSpecK_);
    bars->addRow(lblCoefficient, coefficient);
    bars->addRow(QString(), lblReflection_);
    auto* lblNormal = new QLabel(withAccessKey(form_.lblNormal.Caption, 'N'), this);
    lblNormal->setBuddy(HScrollSpecN_);
    bars->addRow(lblNormal, HScrollSpecN_);
    bars->addRow(QString(), lblIntensity_);
    for (const auto& [bar, name] :
         {std::pair{HScrollSpecK_, "HScrollSpecK"}, std::pair{HScrollSpecN_, "HScrollSpecN"}}) {
        connect(bar, &QScrollBar::valueChanged, this, [this, name = name](int value) {
            act([this, name, value] { form_.moveScrollBar(name, value); });
        });
    }

    auto* left = new QVBoxLayout;
    left->addLayout(colors);
    left->addWidget(specular);
    left->addStretch();

    auto* lblPointIndices = new QLabel(withAccessKey(form_.lblPointIndices.Caption, 'P'), this);
    lblPointIndices->setBuddy(listPointIndex_);
    listPointIndex_->setObjectName("listPointIndex");
    listPointIndex_->setMinimumSize(140, 160);
    connect(listPointIndex_, &QListWidget::currentRowChanged, this, [this](int row) {
        EventGuard::run([this, row] { form_.pickListLine("listPointIndex", row); });
    });
    QPushButton* cmdAddIndex = button(withAccessKey(form_.cmdAddIndex.Caption, 'd'), "cmdAddIndex");
    QPushButton* cmdModifyIndex =
        button(withAccessKey(form_.cmdModifyIndex.Caption, 'M'), "cmdModifyIndex");
    QPushButton* cmdRemoveIndex =
        button(withAccessKey(form_.cmdRemoveIndex.Caption, 'R'), "cmdRemoveIndex");
    auto* indexButtons = new QVBoxLayout;
    for (QPushButton* widget : {cmdAddIndex, cmdModifyIndex, cmdRemoveIndex}) {
        indexButtons->addWidget(widget);
    }
    indexButtons->addStretch();
    auto* indices = new QHBoxLayout;
    indices->addWidget(listPointIndex_, 1);
    indices->addLayout(indexButtons);
    auto* right = new QVBoxLayout;
    right->addWidget(lblPointIndices);
    right->addLayout(indices);

    OrientSwitch_->setObjectName("OrientSwitch");
    connect(OrientSwitch_, &QCheckBox::toggled, this, [this](bool checked) {
        EventGuard::run([this, checked] { form_.setChecked("OrientSwitch", checked); });
    });

    auto* columns = new QHBoxLayout;
    columns->addLayout(left, 1);
    columns->addLayout(right);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns);
    layout->addWidget(OrientSwitch_);
    QDialogButtonBox* commands = commandButtons(form_.mnuAccept, "mnuAccept", form_.mnuCancel);
    layout->addWidget(commands);

    // Top to bottom, the left column first, the commands last.
    std::vector<QWidget*> order{cmdColorSelect, Command1,        HScrollSpecK_,
                                HScrollSpecN_,  listPointIndex_, cmdAddIndex,
                                cmdModifyIndex, cmdRemoveIndex,  OrientSwitch_};
    for (QAbstractButton* command : commands->buttons()) {
        order.push_back(command);
    }
    for (size_t i = 0; i + 1 < order.size(); ++i) {
        setTabOrder(order[i], order[i + 1]);
    }
    refresh();
}

void frmFacePropertyView::refresh() {
    showSwatch(*picAmbColor_, form_.picAmbColor);
    showSwatch(*picDifColor_, form_.picDifColor);
    showScrollBar(*HScrollSpecK_, form_.HScrollSpecK);
    lblReflection_->setText(QString::fromStdString(form_.lblReflection.Caption));
    showScrollBar(*HScrollSpecN_, form_.HScrollSpecN);
    lblIntensity_->setText(QString::fromStdString(form_.lblIntensity.Caption));
    // Filling the list is not the user picking a line.
    const QSignalBlocker blocker(listPointIndex_);
    listPointIndex_->clear();
    for (const std::string& line : form_.listPointIndex.items) {
        listPointIndex_->addItem(QString::fromStdString(line));
    }
    listPointIndex_->setCurrentRow(form_.listPointIndex.ListIndex);
    OrientSwitch_->setChecked(form_.OrientSwitch.Value);
}
