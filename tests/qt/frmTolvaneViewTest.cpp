#include "qt/frmTolvaneView.h"

#include "app/ListChange.h"
#include "qt/CanvasWidget.h"
#include "qt/DesktopKey.h"
#include "scene/Transformed3d.h"
#include "support/ShownWindow.h"
#include "support/TempFolder.h"
#include "support/TestSolids.h"

#include <QDragEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

// A mode whose left press fails the way an unforeseen fault would.
struct FailingMode : ClickHandleNothing {
    std::optional<viewInfo> handleLeftClick(MouseEventArgs&) override {
        throw std::runtime_error("no memory left");
    }
};

// The action reached from a menu bar or menu by its captions, or nullptr.
QAction* findAction(const QWidget& menu, const QStringList& path) {
    for (QAction* action : menu.actions()) {
        if (action->text() == path.first()) {
            return path.size() == 1            ? action
                   : action->menu() != nullptr ? findAction(*action->menu(), path.mid(1))
                                               : nullptr;
        }
    }
    return nullptr;
}

} // namespace

TEST(frmTolvaneView, MenuBarActsOnEveryViewportAndThePopupOnTheOneRightClicked) {
    ShownWindow s;
    QMenuBar& bar = *s.window.menuBar();
    findAction(bar, {"&Options", "&Set Viewports", "&Four Windows"})->trigger();
    EXPECT_TRUE(s.window.picOrtho(0).isVisible());
    QAction* parallel = findAction(bar, {"&View", "&Projection Type", "P&arallel"});
    ASSERT_NE(parallel, nullptr);
    EXPECT_EQ(parallel->shortcut(), QKeySequence(Qt::Key_F1));
    parallel->trigger();
    EXPECT_EQ(s.form.getViewports().viewSpecs(3).ProjectionType, 0);
    findAction(bar, {"&View", "&Projection Type", "P&erspective"})->trigger();

    QAction* grid = findAction(bar, {"&View", "&Display", "&Grid"});
    ASSERT_NE(grid, nullptr);
    EXPECT_TRUE(grid->isChecked());
    grid->trigger();
    EXPECT_FALSE(grid->isChecked());
    EXPECT_EQ(findAction(bar, {"-view popup-"}), nullptr);
    EXPECT_EQ(findAction(bar, {"&Edit", "&Redo"})->shortcuts(),
              (QList<QKeySequence>{QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")}));
    EXPECT_FALSE(findAction(bar, {"&Selectors", "&Property <enter>"})->isEnabled());

    // The pop-up runs while the press waits; its Parallel is chosen, then it closes.
    QTimer::singleShot(0, [] {
        auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(popup, nullptr);
        findAction(*popup, {"&Projection Type", "P&arallel"})->trigger();
        popup->close();
    });
    sendMouse(s.window.picOrtho(1), QEvent::MouseButtonPress, {20, 20}, Qt::RightButton,
              Qt::RightButton);
    EXPECT_EQ(s.form.getViewports().viewSpecs(2).ProjectionType, 0);
    EXPECT_EQ(s.form.getViewports().viewSpecs(1).ProjectionType, 1);
}

TEST(frmTolvaneView, KeysAndMouseReachTheWindowAndAFailingCommandIsReported) {
    ShownWindow s;
    // C closes the profile being drawn; with none, the window says so.
    key(s.window.picOrtho(3), Qt::Key_C, "c");
    ASSERT_EQ(s.prompts.messages().size(), 1u);
    EXPECT_EQ(s.prompts.messages()[0].title, "Error Closing Profile");
    s.prompts.forget();

    CanvasWidget& viewport = s.window.picOrtho(3);
    const QImage before = viewport.canvas().image();
    const ViewSpecs specsBefore = s.form.getViewports().viewSpecs(4);
    sendMouse(viewport, QEvent::MouseMove, {300, 300}, Qt::NoButton, Qt::NoButton);
    sendMouse(viewport, QEvent::MouseButtonPress, {300, 300}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(viewport, QEvent::MouseMove, {360, 330}, Qt::NoButton, Qt::LeftButton);
    sendMouse(viewport, QEvent::MouseButtonRelease, {360, 330}, Qt::LeftButton, Qt::NoButton);
    EXPECT_NE(s.form.getViewports().viewSpecs(4).EyeTheta, specsBefore.EyeTheta);
    EXPECT_NE(s.form.getViewports().viewSpecs(4).EyePhi, specsBefore.EyePhi);
    EXPECT_NE(viewport.canvas().image(), before);
    EXPECT_EQ(viewport.cursor().shape(), Qt::SizeAllCursor);

    s.form.getDocument().solids.push_back(std::make_shared<Transformed3d>());
    s.form.getMouse().setMouseMode(std::make_unique<FailingMode>());
    sendMouse(viewport, QEvent::MouseButtonPress, {300, 300}, Qt::LeftButton, Qt::LeftButton);
    ASSERT_EQ(s.prompts.messages().size(), 1u);
    EXPECT_EQ(s.prompts.messages()[0].text, "The command could not be completed: no memory left");
    EXPECT_EQ(s.form.getDocument().solids.size(), 1u);
    // The next event is handled as usual.
    sendMouse(viewport, QEvent::MouseMove, {310, 300}, Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(s.form.getViewports().viewSpecs(4).anchorX, 310);
}

TEST(frmTolvaneView, StartsAtItsClientSizeAndPassesKeysOnButModifiersAlone) {
    ScriptedPrompts prompts;
    ScriptedModalHost dialogs;
    frmTolvane form(dialogs);
    frmTolvaneView window(form);
    showNow(window);
    EXPECT_EQ(window.centralWidget()->size(),
              QSize(frmTolvane::startUpClientWidth, frmTolvane::startUpClientHeight));

    const std::pair<Qt::Key, std::optional<int>> keys[] = {
        {Qt::Key_Shift, {}}, {Qt::Key_Alt, {}},    {Qt::Key_Control, {}}, {Qt::Key_A, 65},
        {Qt::Key_Enter, 13}, {Qt::Key_Return, 13}, {Qt::Key_Delete, 46}};
    for (const auto& [code, heard] : keys) {
        EXPECT_EQ(desktopKeyCode(QKeyEvent(QEvent::KeyPress, code, Qt::NoModifier)), heard) << code;
    }
}

TEST(frmTolvaneView, ClosingWithUnsavedWorkAsksFirstAndCancelKeepsTheWindow) {
    ShownWindow s;
    SceneDocument& document = s.form.getDocument();
    s.form.history().push("Extrude", ListChange<Transformed3d>::insert(document, makeObject(), 0));
    EXPECT_FALSE(s.window.close()); // unanswered: Cancel
    EXPECT_TRUE(s.window.isVisible());
    ASSERT_EQ(s.prompts.messages().size(), 1u);
    EXPECT_EQ(s.prompts.messages()[0].text, "Save changes to Untitled?");
    EXPECT_TRUE(s.window.isWindowModified());
    s.prompts.queueAnswer(MessageAnswer::Discard);
    EXPECT_TRUE(s.window.close());
}

TEST(frmTolvaneView, AFileDroppedIsOpenedAndTheStatusBarSaysSoBesideTheModeHint) {
    TempFolder folder;
    ASSERT_TRUE(TavrinMeshIO().saveFile({makeObject()}, folder.file("a.tvm")));
    ShownWindow s;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(folder.file("a.tvm")))});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&s.window, &enter);
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&s.window, &drop);
    QApplication::processEvents();
    EXPECT_EQ(s.window.statusBar()->currentMessage(), QString("Opened a.tvm (1 solid, 6 faces)"));
    EXPECT_EQ(s.window.statusBar()->findChild<QLabel*>()->text(),
              QString("Rotate: drag with the left button to turn the view"));
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
