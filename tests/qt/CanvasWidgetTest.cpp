#include "qt/CanvasWidget.h"

#include <QApplication>
#include <QMouseEvent>
#include <gtest/gtest.h>

namespace {

void send(QWidget& widget, QEvent::Type type, Qt::MouseButtons buttons) {
    const QPointF at(5, 5);
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

TEST(CanvasWidget, ADoubleClickIsTwoPresses) {
    CanvasWidget widget;
    int presses = 0;
    QObject::connect(&widget, &CanvasWidget::mousePressed,
                     [&presses](int button, int, double, double) {
                         EXPECT_EQ(button, 1);
                         ++presses;
                     });
    // What Qt delivers for a double-click: the second press comes twice, the second time as
    // a double-click.
    send(widget, QEvent::MouseButtonPress, Qt::LeftButton);
    send(widget, QEvent::MouseButtonRelease, Qt::NoButton);
    send(widget, QEvent::MouseButtonPress, Qt::LeftButton);
    send(widget, QEvent::MouseButtonDblClick, Qt::LeftButton);
    send(widget, QEvent::MouseButtonRelease, Qt::NoButton);
    EXPECT_EQ(presses, 2);
}
