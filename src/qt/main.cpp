#include "app/frmTolvane.h"
#include "qt/QtPrompts.h"
#include "qt/frmTolvaneView.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    frmTolvane form;
    frmTolvaneView window(form);
    QtPrompts prompts(&window);
    installPrompts(&prompts);
    window.show();
    const int status = QApplication::exec();
    installPrompts(nullptr);
    return status;
}
