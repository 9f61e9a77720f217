#include "qt/frmMouseSensivityView.h"

#include "app/EventGuard.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScrollBar>
#include <QVBoxLayout>

frmMouseSensivityView::frmMouseSensivityView(frmMouseSensivity& form, QWidget* parent)
    : QDialog(parent), form_(form), HScroll1_(new QScrollBar(Qt::Horizontal, this)),
      lblSens_(new QLabel(QString::fromStdString(form.lblSens.Caption), this)) {
    setWindowTitle(QString::fromStdString(form_.caption()));

    auto* menuBar = new QMenuBar(this);
    const auto addItem = [this, menuBar](const ButtonState& item, const std::string& name) {
        connect(menuBar->addAction(QString::fromStdString(item.Caption)), &QAction::triggered, this,
                [this, name] {
                    EventGuard::run([this, &name] { form_.press(name); });
                    closeIfDone();
                });
    };
    addItem(form_.mnuAccept, "mnuAccept");
    addItem(form_.mnuCancel, "mnuCancel");

    // The Qt bar counts positions from its left end, so that its arrows, trough and
    // Home/End move the thumb the way it is drawn whichever way the values run.
    const ScrollBarState& bar = form_.HScroll1;
    HScroll1_->setRange(0, bar.span());
    HScroll1_->setValue(bar.positionOf(bar.Value));
    HScroll1_->setSingleStep(bar.SmallChange);
    HScroll1_->setPageStep(bar.LargeChange);
    HScroll1_->setMinimumWidth(240);
    connect(HScroll1_, &QScrollBar::valueChanged, this, [this](int position) {
        EventGuard::run([this, position] {
            form_.moveScrollBar("HScroll1", form_.HScroll1.valueAt(position));
        });
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

void frmMouseSensivityView::keyPressEvent(QKeyEvent* event) {
    // Enter accepts, as in every other dialog; Escape cancels (QDialog's own handling).
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        EventGuard::run([this] { form_.press("mnuAccept"); });
        closeIfDone();
        return;
    }
    QDialog::keyPressEvent(event);
}

void frmMouseSensivityView::closeIfDone() {
    if (form_.isClosed()) {
        accept();
    }
}
