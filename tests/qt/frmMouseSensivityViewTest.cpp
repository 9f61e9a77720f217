#include "qt/frmMouseSensivityView.h"

#include "qt/QtModalHost.h"
#include "support/QtInput.h"

#include <QScrollBar>
#include <QTimer>
#include <gtest/gtest.h>

TEST(frmMouseSensivityView, TheBarMovesTheWayItIsDrawn) {
    frmMouseSensivity form;
    form.setSensivityDisplayValue(0.0025f);
    frmMouseSensivityView view(form);
    showNow(view);
    // Positions count from the bar's left end, beside "Dull", where the value is 1000.
    QScrollBar& bar = view.scrollBar();
    EXPECT_EQ(bar.value(), 600);
    bar.setValue(751);
    EXPECT_EQ(form.HScroll1.Value, 249);
    key(bar, Qt::Key_Home);
    bar.triggerAction(QAbstractSlider::SliderSingleStepAdd); // an arrow: 1 %
    EXPECT_EQ(form.lblSens.Caption, "Sensivity: 1%");
    key(bar, Qt::Key_Return); // the dialog accepts
    EXPECT_TRUE(form.isClosed());
}

TEST(QtModalHost, RunsTheDialogsViewUntilTheDialogClosesAndAClosedOneNotAtAll) {
    QtModalHost host;
    frmMouseSensivity form;
    EXPECT_THROW(host.showModal(form), std::logic_error); // no view registered yet
    host.registerView<frmMouseSensivity, frmMouseSensivityView>();

    // A dialog that closed while it was set up (an initialize that refused) is not shown.
    frmMouseSensivity closed;
    closed.mnuCancel_Click();
    QTimer::singleShot(0, [] {
        if (QWidget* open = QApplication::activeModalWidget()) {
            ADD_FAILURE() << "a closed dialog was shown";
            open->close();
        }
    });
    host.showModal(closed);
    QApplication::processEvents();

    QTimer::singleShot(0, [] {
        auto* view = qobject_cast<frmMouseSensivityView*>(QApplication::activeModalWidget());
        if (view == nullptr) {
            return;
        }
        view->scrollBar().triggerAction(QAbstractSlider::SliderToMaximum); // "Nervous"
        for (QAction* action : view->findChildren<QAction*>()) {
            if (action->text() == "&Accept") {
                action->trigger();
            }
        }
        // Should Accept not have closed it, end the test rather than wait for ever.
        if (QWidget* open = QApplication::activeModalWidget()) {
            open->close();
        }
    });
    host.showModal(form);
    EXPECT_TRUE(form.isClosed());
    EXPECT_EQ(form.HScroll1.Value, 1);
}
