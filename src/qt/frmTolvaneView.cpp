#include "qt/frmTolvaneView.h"

frmTolvaneView::frmTolvaneView(frmTolvane& form, QWidget* parent)
    : QMainWindow(parent), form_(form) {
    setWindowTitle(QString::fromStdString(form_.caption()));
    resize(1024, 700);
}
