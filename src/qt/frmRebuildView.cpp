#include "qt/frmRebuildView.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

frmRebuildView::frmRebuildView(const frmRebuild& form, QWidget* parent) : QDialog(parent) {
    setWindowTitle(QString::fromStdString(form.caption()));
    auto* image = new QLabel(this);
    image->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(32, 32));
    auto* text = new QLabel(QString::fromStdString(form.Label1.Caption), this);
    text->setWordWrap(true);
    text->setMinimumWidth(320);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(image, 0, Qt::AlignTop);
    layout->addWidget(text, 1);
    setModal(false);
    show();
    QApplication::processEvents();
}
