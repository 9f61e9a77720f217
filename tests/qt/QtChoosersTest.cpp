#include "qt/QtColorChooser.h"
#include "qt/QtFileChooser.h"
#include "qt/QtPrompts.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace {

// Acts on the next modal dialog of type D once its event loop runs, as a user would.
template <class D> void whenShown(std::function<void(D&)> act) {
    QTimer::singleShot(0, [act] {
        auto* dialog = qobject_cast<D*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr) << "no modal dialog of the expected type";
        act(*dialog);
    });
}

} // namespace

TEST(QtFileChooser, StartsInTheProgramFolderEveryTimeAndAcceptsNewNames) {
    QtFileChooser chooser;
    QTemporaryDir elsewhere;
    const QString newName = elsewhere.path() + "/not yet.tvm";
    QStringList seen; // the start folder, title and filters of every dialog
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        seen << dialog.directory().absolutePath() << dialog.windowTitle() << dialog.nameFilters();
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave); // its button says Save
        dialog.selectFile(newName);
        static_cast<QDialog&>(dialog).accept(); // QFileDialog hides the public slot
    });
    EXPECT_EQ(chooser.chooseFile("Save File", "Tavrin Mesh File(*.tvm)|*.tvm"),
              newName.toStdString());
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        seen << dialog.directory().absolutePath() << dialog.windowTitle() << dialog.nameFilters();
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        dialog.reject();
    });
    EXPECT_EQ(chooser.chooseFile("Open File", "Bitmaps|*.bmp"), "");
    const QString folder = QDir(QCoreApplication::applicationDirPath()).absolutePath();
    EXPECT_EQ(seen, (QStringList{folder, "Save File", "Tavrin Mesh File(*.tvm)", folder,
                                 "Open File", "Bitmaps (*.bmp)"}));
}

TEST(QtPrompts, EnterAnswersNoWhereYesLosesWork) {
    QtPrompts prompts;
    for (const auto& [buttons, answer] :
         {std::pair{MessageButtons::YesNo, MessageAnswer::Yes},
          std::pair{MessageButtons::YesNoDefaultNo, MessageAnswer::No}}) {
        whenShown<QMessageBox>([](QMessageBox& box) {
            QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QApplication::sendEvent(&box, &enter);
        });
        EXPECT_EQ(prompts.messageBox("Lose it?", "Question", MessageIcon::None, buttons), answer);
    }
}

TEST(QtColorChooser, ReturnsPackedColourBlackAsZeroAndCancelAsMinusOne) {
    QtColorChooser chooser;
    for (const auto& chosen : {std::pair{QColor(255, 128, 1), 255 + 256 * 128 + 65536 * 1},
                               std::pair{QColor(0, 0, 0), 0}}) {
        whenShown<QColorDialog>([colour = chosen.first](QColorDialog& dialog) {
            dialog.setCurrentColor(colour);
            dialog.accept();
        });
        EXPECT_EQ(chooser.chooseColor(), chosen.second);
    }
    // Custom colours defined in one call are gone in the next, and nothing is preselected.
    QColorDialog::setCustomColor(0, QColor(Qt::red));
    QColor firstCustom;
    QColor start;
    whenShown<QColorDialog>([&](QColorDialog& dialog) {
        firstCustom = QColorDialog::customColor(0);
        start = dialog.currentColor();
        dialog.reject();
    });
    EXPECT_EQ(chooser.chooseColor(), -1);
    EXPECT_EQ(firstCustom, QColor(Qt::black));
    EXPECT_EQ(start, QColor(Qt::black));
}
