#include "qt/frmMouseSensivityView.h"

#include "qt/QtModalHost.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimer>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

void click(QWidget& widget, QPoint at) {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons held =
            type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
}

void key(QWidget& widget, Qt::Key code) {
    QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

TEST(frmMouseSensivityView, TheBarMovesTheWayItIsDrawn) {
    frmMouseSensivity form;
    form.setSensivityDisplayValue(0.0025f);
    frmMouseSensivityView view(form);
    view.show();
    QApplication::processEvents();
    QScrollBar& bar = view.scrollBar();

    // The arrow at the right end, beside "Nervous", makes the mouse more nervous, 1 % a click.
    const QPoint rightArrow(bar.width() - 3, bar.height() / 2);
    for (int i = 0; i < 15; ++i) {
        click(bar, rightArrow);
    }
    EXPECT_EQ(form.HScroll1.Value, 250);
    EXPECT_EQ(form.lblSens.Caption, "Sensivity: 75%");

    key(bar, Qt::Key_Home); // the left end: "Dull"
    EXPECT_EQ(form.HScroll1.Value, 1000);
    key(bar, Qt::Key_End);
    EXPECT_EQ(form.HScroll1.Value, 1);

    key(bar, Qt::Key_Return); // the dialog accepts
    EXPECT_TRUE(form.isClosed());
}

TEST(QtModalHost, RunsTheDialogsViewUntilTheDialogCloses) {
    QtModalHost host;
    frmMouseSensivity form;
    EXPECT_THROW(host.showModal(form), std::logic_error); // no view registered yet

    host.registerView<frmMouseSensivity, frmMouseSensivityView>();
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
