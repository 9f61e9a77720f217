#include "qt/frmTolvaneView.h"

#include "qt/CanvasWidget.h"

#include <QApplication>
#include <QMouseEvent>
#include <gtest/gtest.h>

namespace {

void sendMouse(QWidget& widget, QEvent::Type type, QPointF at, Qt::MouseButton button,
               Qt::MouseButtons buttons) {
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

TEST(frmTolvaneView, OpensCaptionedMainWindow) {
    frmTolvane form;
    frmTolvaneView window(form);
    window.show();
    EXPECT_EQ(window.windowTitle(), QString("Korvan Version 2.0"));
    EXPECT_TRUE(window.isVisible());
}

TEST(frmTolvaneView, LeftDragOnTheViewportTurnsTheView) {
    frmTolvane form;
    frmTolvaneView window(form);
    window.resize(1000, 700);
    window.show();
    QApplication::processEvents();
    CanvasWidget& viewport = window.picOrtho(3);
    ASSERT_TRUE(viewport.isVisible());
    ASSERT_GT(viewport.width(), 500);
    const QImage before = viewport.canvas().image();
    const ViewSpecs specsBefore = form.getViewSpecs(4);

    sendMouse(viewport, QEvent::MouseMove, {300, 300}, Qt::NoButton, Qt::NoButton);
    sendMouse(viewport, QEvent::MouseButtonPress, {300, 300}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(viewport, QEvent::MouseMove, {360, 330}, Qt::NoButton, Qt::LeftButton);
    sendMouse(viewport, QEvent::MouseButtonRelease, {360, 330}, Qt::LeftButton, Qt::NoButton);

    EXPECT_NE(form.getViewSpecs(4).EyeTheta, specsBefore.EyeTheta);
    EXPECT_NE(form.getViewSpecs(4).EyePhi, specsBefore.EyePhi);
    EXPECT_NE(viewport.canvas().image(), before);
}

int main(int argc, char** argv) {
    // Test discovery runs this binary without the test's environment: never look for a display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
