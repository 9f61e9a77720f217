#include "qt/CanvasWidget.h"

#include "support/QtInput.h"

#include <gtest/gtest.h>

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
    click(widget, {5, 5});
    sendMouse(widget, QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseButtonDblClick, {5, 5}, Qt::LeftButton, Qt::LeftButton);
    EXPECT_EQ(presses, 2);
}
