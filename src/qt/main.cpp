#include "app/frmMouseSensivity.h"
#include "app/frmSplash.h"
#include "app/frmTolvane.h"
#include "modelling/frmAdditionalExtrusions.h"
#include "modelling/frmExtrude.h"
#include "modelling/frmFaceProperty.h"
#include "modelling/frmPointIndexSelect.h"
#include "modelling/frmSolidProperty.h"
#include "qt/QtModalHost.h"
#include "qt/QtPrompts.h"
#include "qt/frmAdditionalExtrusionsView.h"
#include "qt/frmExtrudeView.h"
#include "qt/frmFacePropertyView.h"
#include "qt/frmMouseSensivityView.h"
#include "qt/frmOrientationView.h"
#include "qt/frmPointIndexSelectView.h"
#include "qt/frmProfilePropertyView.h"
#include "qt/frmSolidPropertyView.h"
#include "qt/frmSplashView.h"
#include "qt/frmTolvaneView.h"
#include "qt/frmWorkPlaneParametricView.h"
#include "qt/frmWorkPlanePropertyView.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QtModalHost dialogs;
    dialogs.registerView<frmMouseSensivity, frmMouseSensivityView>();
    dialogs.registerView<frmWorkPlaneParametric, frmWorkPlaneParametricView>();
    dialogs.registerView<frmWorkPlaneProperty, frmWorkPlanePropertyView>();
    dialogs.registerView<frmOrientation, frmOrientationView>();
    dialogs.registerView<frmProfileProperty, frmProfilePropertyView>();
    dialogs.registerView<frmExtrude, frmExtrudeView>();
    dialogs.registerView<frmAdditionalExtrusions, frmAdditionalExtrusionsView>();
    dialogs.registerView<frmFaceProperty, frmFacePropertyView>();
    dialogs.registerView<frmPointIndexSelect, frmPointIndexSelectView>();
    dialogs.registerView<frmSolidProperty, frmSolidPropertyView>();
    frmTolvane form(dialogs);
    frmTolvaneView window(form);
    QtPrompts prompts(&window);
    installPrompts(&prompts);

    // The splash plays first and shows the main window when it is done.
    frmSplash splashForm;
    frmSplashView splash(splashForm);
    QObject::connect(&splash, &frmSplashView::finished, &window, &QWidget::show);
    splash.show();

    const int status = QApplication::exec();
    installPrompts(nullptr);
    return status;
}
