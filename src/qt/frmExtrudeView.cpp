#include "qt/frmExtrudeView.h"

#include "app/EventGuard.h"
#include "geometry/PackedColor.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <set>
#include <vector>

namespace {

// The caption with an access key on its first letter not taken yet by another control of
// the dialog; a caption that brings its own (&Extrude) keeps it.
QString withAccessKey(const std::string& caption, std::set<QChar>& taken) {
    QString text = QString::fromStdString(caption);
    const qsizetype marked = text.indexOf('&');
    if (marked >= 0 && marked + 1 < text.size()) {
        taken.insert(text[marked + 1].toLower());
        return text;
    }
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isLetter() && taken.insert(text[i].toLower()).second) {
            return text.left(i) + '&' + text.mid(i);
        }
    }
    return text;
}

void showText(QLineEdit& box, const TextBoxState& state) {
    const QString text = QString::fromStdString(state.Text);
    if (box.text() != text) {
        box.setText(text);
    }
    if (state.Focused && !box.hasFocus()) {
        box.setFocus();
    }
}

void showColor(QFrame& swatch, const SwatchState& state) {
    const PackedColor c = PackedColor::split(state.BackColor);
    swatch.setStyleSheet(QString("background-color: rgb(%1, %2, %3); border: 1px solid gray;")
                             .arg(c.red)
                             .arg(c.green)
                             .arg(c.blue));
    swatch.setEnabled(state.Enabled);
}

QScrollBar* newScrollBar(const ScrollBarState& state, QWidget* parent) {
    auto* bar = new QScrollBar(Qt::Horizontal, parent);
    bar->setRange(state.Min, state.Max);
    bar->setSingleStep(state.SmallChange);
    bar->setPageStep(state.LargeChange);
    bar->setMinimumWidth(160);
    return bar;
}

} // namespace

frmExtrudeView::frmExtrudeView(frmExtrude& form, QWidget* parent)
    : QDialog(parent), form_(form), txtExtrusionLength_(new QLineEdit(this)),
      txtIncrements_(new QLineEdit(this)), chkCapEnds_(new QCheckBox(this)),
      List1_(new QListWidget(this)), useAmbient_(new QCheckBox(this)),
      lblAmbColor_(new QLabel(this)), picAmbColor_(new QFrame(this)),
      cmdColorSelect_(new QPushButton(this)), useDiffuse_(new QCheckBox(this)),
      lblDifColor_(new QLabel(this)), picDifColor_(new QFrame(this)),
      cmdColorSelect2_(new QPushButton(this)), UseSpecularK_(new QCheckBox(this)),
      HScrollSpecK_(newScrollBar(form.surface.HScrollSpecK, this)),
      useSpecularN_(new QCheckBox(this)),
      HScrollSpecN_(newScrollBar(form.surface.HScrollSpecN, this)) {
    setWindowTitle(QString::fromStdString(form_.caption()));
    std::set<QChar> taken;
    const auto caption = [&taken](const std::string& text) { return withAccessKey(text, taken); };

    // The commands first, so that their own access keys are taken before any other.
    auto* buttons = new QDialogButtonBox(this);
    auto* mnuExtrude =
        buttons->addButton(caption(form_.mnuExtrude.Caption), QDialogButtonBox::AcceptRole);
    auto* mnuPreview =
        buttons->addButton(caption(form_.mnuPreview.Caption), QDialogButtonBox::ActionRole);
    auto* mnuCancel =
        buttons->addButton(caption(form_.mnuCancel.Caption), QDialogButtonBox::RejectRole);
    mnuExtrude->setDefault(true);
    connect(mnuExtrude, &QPushButton::clicked, this,
            [this] { act([this] { form_.press("mnuExtrude"); }); });
    connect(mnuPreview, &QPushButton::clicked, this,
            [this] { act([this] { form_.press("mnuPreview"); }); });
    connect(mnuCancel, &QPushButton::clicked, this, &frmExtrudeView::reject);

    // The list's buttons next: their short captions have few letters to choose from.
    auto* listButtons = new QVBoxLayout;
    std::vector<QWidget*> listButtonWidgets;
    for (const auto& [state, name] : {std::pair{&form_.cmdAddTrans, "cmdAddTrans"},
                                      {&form_.cmdRemoveTrans, "cmdRemoveTrans"},
                                      {&form_.cmdMoveUpTrans, "cmdMoveUpTrans"},
                                      {&form_.cmdMoveDownTrans, "cmdMoveDownTrans"}}) {
        auto* button = new QPushButton(caption(state->Caption), this);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [this, name] { act([this, name] { form_.press(name); }); });
        listButtons->addWidget(button);
        listButtonWidgets.push_back(button);
    }
    listButtons->addStretch();
    auto* listLayout = new QHBoxLayout;
    listLayout->addWidget(List1_, 1);
    listLayout->addLayout(listButtons);

    const auto textGroup = [&](const LabelState& frame, QLineEdit* box, const char* name) {
        auto* group = new QGroupBox(caption(frame.Caption), this);
        auto* layout = new QHBoxLayout(group);
        layout->addWidget(box);
        box->setObjectName(name);
        box->setMinimumWidth(80);
        connect(box, &QLineEdit::textEdited, this, [this, name](const QString& text) {
            act([this, name, text] { form_.typeText(name, text.toStdString()); });
        });
        return group;
    };
    auto* lengthGroup =
        textGroup(form_.fraExtrusionLength, txtExtrusionLength_, "txtExtrusionLength");
    auto* incrementsGroup = textGroup(form_.fraIncrements, txtIncrements_, "txtIncrements");

    auto* orientationGroup = new QGroupBox(caption(form_.fraOrientation.Caption), this);
    auto* orientationLayout = new QVBoxLayout(orientationGroup);
    for (size_t i = 0; i < optExtrude_.size(); ++i) {
        optExtrude_[i] = new QRadioButton(caption(form_.optExtrude[i].Caption), orientationGroup);
        orientationLayout->addWidget(optExtrude_[i]);
        const std::string name = "optExtrude(" + std::to_string(i) + ")";
        connect(optExtrude_[i], &QRadioButton::clicked, this,
                [this, name] { act([this, name] { form_.chooseOption(name); }); });
    }
    chkCapEnds_->setText(caption(form_.chkCapEnds.Caption));

    const auto bindCheck = [this](QCheckBox* box, const char* name) {
        connect(box, &QCheckBox::clicked, this, [this, name](bool checked) {
            act([this, name, checked] { form_.setChecked(name, checked); });
        });
    };
    bindCheck(chkCapEnds_, "chkCapEnds");

    auto* listGroup = new QGroupBox(caption(form_.fraTransformations.Caption), this);
    listGroup->setLayout(listLayout);
    List1_->setMinimumSize(180, 90);
    connect(List1_, &QListWidget::currentRowChanged, this,
            [this](int row) { act([this, row] { form_.pickListLine("List1", row); }); });

    auto* surfaceGroup = new QGroupBox(caption(form_.fraSurface.Caption), this);
    auto* surface = new QGridLayout(surfaceGroup);
    int row = 0;
    const auto colorRow = [&](QCheckBox* use, const CheckBoxState& useState, const char* useName,
                              QLabel* label, const LabelState& labelState, QFrame* swatch,
                              QPushButton* select, const ButtonState& selectState,
                              const char* selectName) {
        use->setText(caption(useState.Caption));
        bindCheck(use, useName);
        label->setText(QString::fromStdString(labelState.Caption));
        swatch->setMinimumSize(40, 20);
        select->setText(caption(selectState.Caption));
        select->setAutoDefault(false);
        connect(select, &QPushButton::clicked, this,
                [this, selectName] { act([this, selectName] { form_.press(selectName); }); });
        surface->addWidget(use, row, 0, 1, 4);
        ++row;
        surface->addWidget(label, row, 1);
        surface->addWidget(swatch, row, 2);
        surface->addWidget(select, row, 3);
        ++row;
    };
    colorRow(useAmbient_, form_.surface.useAmbient, "useAmbient", lblAmbColor_,
             form_.surface.lblAmbColor, picAmbColor_, cmdColorSelect_, form_.surface.cmdColorSelect,
             "cmdColorSelect");
    colorRow(useDiffuse_, form_.surface.useDiffuse, "useDiffuse", lblDifColor_,
             form_.surface.lblDifColor, picDifColor_, cmdColorSelect2_,
             form_.surface.cmdColorSelect2, "cmdColorSelect2");
    const auto scaleRows = [&](QCheckBox* use, const CheckBoxState& useState, const char* useName,
                               std::array<QLabel*, 3>& labels, QScrollBar* bar,
                               const char* barName) {
        use->setText(caption(useState.Caption));
        bindCheck(use, useName);
        for (QLabel*& label : labels) {
            label = new QLabel(surfaceGroup);
        }
        surface->addWidget(use, row, 0, 1, 4);
        ++row;
        surface->addWidget(labels[1], row, 1, 1, 3);
        ++row;
        auto* scale = new QHBoxLayout;
        scale->addWidget(labels[0]);
        scale->addWidget(bar, 1);
        scale->addWidget(labels[2]);
        surface->addLayout(scale, row, 1, 1, 3);
        ++row;
        connect(bar, &QScrollBar::valueChanged, this, [this, barName](int value) {
            act([this, barName, value] { form_.moveScrollBar(barName, value); });
        });
    };
    scaleRows(UseSpecularK_, form_.surface.UseSpecularK, "UseSpecularK", reflectionLabels_,
              HScrollSpecK_, "HScrollSpecK");
    scaleRows(useSpecularN_, form_.surface.useSpecularN, "useSpecularN", intensityLabels_,
              HScrollSpecN_, "HScrollSpecN");
    surface->setColumnMinimumWidth(0, 16);

    auto* left = new QVBoxLayout;
    left->addWidget(lengthGroup);
    left->addWidget(incrementsGroup);
    left->addWidget(orientationGroup);
    left->addWidget(chkCapEnds_);
    left->addStretch();
    auto* right = new QVBoxLayout;
    right->addWidget(listGroup);
    right->addWidget(surfaceGroup);
    auto* columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addLayout(right, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns);
    layout->addWidget(buttons);

    // Top to bottom, the left column first, the commands last.
    std::vector<QWidget*> order{txtExtrusionLength_, txtIncrements_, optExtrude_[0], optExtrude_[1],
                                optExtrude_[2],      chkCapEnds_,    List1_};
    order.insert(order.end(), listButtonWidgets.begin(), listButtonWidgets.end());
    order.insert(order.end(),
                 {useAmbient_, cmdColorSelect_, useDiffuse_, cmdColorSelect2_, UseSpecularK_,
                  HScrollSpecK_, useSpecularN_, HScrollSpecN_, mnuExtrude, mnuPreview, mnuCancel});
    for (size_t i = 0; i + 1 < order.size(); ++i) {
        setTabOrder(order[i], order[i + 1]);
    }
    showState();
}

void frmExtrudeView::act(const std::function<void()>& action) {
    // Where the focus is now, so that only a box the logic focuses anew takes it back.
    form_.txtExtrusionLength.Focused = txtExtrusionLength_->hasFocus();
    form_.txtIncrements.Focused = txtIncrements_->hasFocus();
    EventGuard::run(action);
    if (form_.isClosed()) {
        QDialog::accept();
        return;
    }
    showState();
}

void frmExtrudeView::reject() {
    act([this] { form_.press("mnuCancel"); });
}

void frmExtrudeView::showState() {
    // Showing the logic's state is not a user action: the widgets' signals stay quiet.
    const QSignalBlocker blockList(List1_);
    const QSignalBlocker blockK(HScrollSpecK_);
    const QSignalBlocker blockN(HScrollSpecN_);
    showText(*txtExtrusionLength_, form_.txtExtrusionLength);
    showText(*txtIncrements_, form_.txtIncrements);
    for (size_t i = 0; i < optExtrude_.size(); ++i) {
        optExtrude_[i]->setChecked(form_.optExtrude[i].Value);
    }
    chkCapEnds_->setChecked(form_.chkCapEnds.Value);

    QStringList items;
    for (const std::string& item : form_.List1.items) {
        items << QString::fromStdString(item);
    }
    bool same = List1_->count() == items.size();
    for (int i = 0; same && i < List1_->count(); ++i) {
        same = List1_->item(i)->text() == items[i];
    }
    if (!same) {
        List1_->clear();
        List1_->addItems(items);
    }
    List1_->setCurrentRow(form_.List1.ListIndex);

    useAmbient_->setChecked(form_.surface.useAmbient.Value);
    lblAmbColor_->setEnabled(form_.surface.lblAmbColor.Enabled);
    showColor(*picAmbColor_, form_.surface.picAmbColor);
    cmdColorSelect_->setEnabled(form_.surface.cmdColorSelect.Enabled);
    useDiffuse_->setChecked(form_.surface.useDiffuse.Value);
    lblDifColor_->setEnabled(form_.surface.lblDifColor.Enabled);
    showColor(*picDifColor_, form_.surface.picDifColor);
    cmdColorSelect2_->setEnabled(form_.surface.cmdColorSelect2.Enabled);

    const auto showScale = [](QCheckBox& use, const CheckBoxState& useState,
                              const std::array<QLabel*, 3>& labels,
                              const std::array<const LabelState*, 3>& states, QScrollBar& bar,
                              const ScrollBarState& barState) {
        use.setChecked(useState.Value);
        for (size_t i = 0; i < labels.size(); ++i) {
            labels[i]->setText(QString::fromStdString(states[i]->Caption));
            labels[i]->setEnabled(states[i]->Enabled);
        }
        bar.setValue(barState.Value);
        bar.setEnabled(barState.Enabled);
    };
    showScale(*UseSpecularK_, form_.surface.UseSpecularK, reflectionLabels_,
              {&form_.surface.lblReflectionLeast, &form_.surface.lblReflection,
               &form_.surface.lblReflectionMost},
              *HScrollSpecK_, form_.surface.HScrollSpecK);
    showScale(*useSpecularN_, form_.surface.useSpecularN, intensityLabels_,
              {&form_.surface.lblIntensityLeast, &form_.surface.lblIntensity,
               &form_.surface.lblIntensityMost},
              *HScrollSpecN_, form_.surface.HScrollSpecN);
}
