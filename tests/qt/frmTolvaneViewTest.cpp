#include "qt/frmTolvaneView.h"

#include "qt/CanvasWidget.h"
#include "scene/Transformed3d.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"

#include <QApplication>
#include <QMouseEvent>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

void sendMouse(QWidget& widget, QEvent::Type type, QPointF at, Qt::MouseButton button,
               Qt::MouseButtons buttons) {
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

// A mode whose left press fails the way an unforeseen fault would.
struct FailingMode : ClickHandleNothing {
    std::optional<viewInfo> handleLeftClick(MouseEventArgs&) override {
        throw std::runtime_error("no memory left");
    }
};

} // namespace

TEST(frmTolvaneView, LeftDragOnTheViewportTurnsTheView) {
    ScriptedModalHost dialogs;
    frmTolvane form(dialogs);
    frmTolvaneView window(form);
    window.resize(1000, 700);
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(window.windowTitle(), QString("Korvan Version 2.0"));
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
    EXPECT_EQ(viewport.cursor().shape(), Qt::SizeAllCursor);
}

TEST(frmTolvaneView, AFailingCommandIsReportedAndTheWindowGoesOn) {
    ScriptedPrompts prompts;
    ScriptedModalHost dialogs;
    frmTolvane form(dialogs);
    frmTolvaneView window(form);
    window.resize(1000, 700);
    window.show();
    QApplication::processEvents();
    form.getDocument().solids.push_back(std::make_shared<Transformed3d>());
    form.setMouseMode(std::make_unique<FailingMode>());
    CanvasWidget& viewport = window.picOrtho(3);

    sendMouse(viewport, QEvent::MouseButtonPress, {300, 300}, Qt::LeftButton, Qt::LeftButton);
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text, "The command could not be completed: no memory left");
    EXPECT_EQ(prompts.messages()[0].icon, MessageIcon::Critical);
    EXPECT_EQ(form.getDocument().solids.size(), 1u);

    // The next event is handled as usual.
    sendMouse(viewport, QEvent::MouseMove, {310, 300}, Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(form.getViewSpecs(4).anchorX, 310);
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
