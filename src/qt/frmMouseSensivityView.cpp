#include "qt/frmMouseSensivityView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

frmMouseSensivityView::frmMouseSensivityView(frmMouseSensivity& form, QWidget* parent)
    : QDialog(parent), form_(form), HScroll1_(new QScrollBar(Qt::Horizontal, this)),
      lblSens_(new QLabel(QString::fromStdString(form.lblSens.Caption), this)) {
    setWindowTitle(QString::fromStdString(form_.caption()));

    auto* menuBar = new QMenuBar(this);
    connect(menuBar->addAction(QString::fromStdString(form_.mnuAccept.Caption)),
            &QAction::triggered, this, [this] {
                form_.mnuAccept_Click();
                closeIfDone(true);
            });
    connect(menuBar->addAction(QString::fromStdString(form_.mnuCancel.Caption)),
            &QAction::triggered, this, [this] {
                form_.mnuCancel_Click();
                closeIfDone(false);
            });

    // A Qt scroll bar needs its minimum below its maximum: when the logic's bar runs from a
    // larger Min on the left, the range is turned round and the appearance inverted.
    const ScrollBarState& bar = form_.HScroll1;
    HScroll1_->setRange(std::min(bar.Min, bar.Max), std::max(bar.Min, bar.Max));
    HScroll1_->setInvertedAppearance(bar.Min > bar.Max);
    HScroll1_->setValue(bar.Value);
    HScroll1_->setMinimumWidth(240);
    connect(HScroll1_, &QScrollBar::valueChanged, this, [this](int value) {
        form_.HScroll1.Value = value;
        form_.HScroll1_Change();
        lblSens_->setText(QString::fromStdString(form_.lblSens.Caption));
    });

    auto* scale = new QHBoxLayout;
    scale->addWidget(new QLabel(QString::fromStdString(form_.lblDull.Caption), this));
    scale->addWidget(HScroll1_, 1);
    scale->addWidget(new QLabel(QString::fromStdString(form_.lblNervous.Caption), this));
    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(menuBar);
    layout->addLayout(scale);
    layout->addWidget(lblSens_);
}

void frmMouseSensivityView::closeIfDone(bool accepted) {
    if (form_.isClosed()) {
        done(accepted ? QDialog::Accepted : QDialog::Rejected);
    }
}
