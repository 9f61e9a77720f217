#include "qt/QtColorChooser.h"
#include "qt/QtFileChooser.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace {

// Acts on the next modal dialog of type D once its event loop runs, as a user would.
template <class D> void whenShown(std::function<void(D&)> act) {
    QTimer::singleShot(0, [act] {
        auto* dialog = qobject_cast<D*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            ADD_FAILURE() << "no modal dialog of the expected type";
            return;
        }
        act(*dialog);
    });
}

} // namespace

TEST(QtFileChooser, StartsInTheProgramFolderEveryTimeAndAcceptsNewNames) {
    QtFileChooser chooser;
    QTemporaryDir elsewhere;
    const QString programFolder = QDir(QCoreApplication::applicationDirPath()).absolutePath();
    const QString newName = elsewhere.path() + "/not yet.tvm";

    QString startedIn;
    QStringList filters;
    QString title;
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        startedIn = dialog.directory().absolutePath();
        filters = dialog.nameFilters();
        title = dialog.windowTitle();
        dialog.selectFile(newName);
        static_cast<QDialog&>(dialog).accept(); // QFileDialog hides the public slot
    });
    EXPECT_EQ(chooser.chooseFile("Save File", "Tavrin Mesh File(*.tvm)|*.tvm"),
              newName.toStdString());
    EXPECT_EQ(startedIn, programFolder);
    EXPECT_EQ(filters, QStringList{"Tavrin Mesh File(*.tvm)"});
    EXPECT_EQ(title, "Save File");

    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        startedIn = dialog.directory().absolutePath();
        filters = dialog.nameFilters();
        dialog.reject();
    });
    EXPECT_EQ(chooser.chooseFile("Open File", "Bitmaps|*.bmp"), "");
    EXPECT_EQ(startedIn, programFolder);
    EXPECT_EQ(filters, QStringList{"Bitmaps (*.bmp)"});
}

TEST(QtColorChooser, ReturnsPackedColourBlackAsZeroAndCancelAsMinusOne) {
    QtColorChooser chooser;
    const auto choose = [](QColor color) {
        whenShown<QColorDialog>([color](QColorDialog& dialog) {
            dialog.setCurrentColor(color);
            dialog.accept();
        });
    };

    choose(QColor(255, 128, 1));
    EXPECT_EQ(chooser.chooseColor(0), 255 + 256 * 128 + 65536 * 1);
    choose(QColor(0, 0, 0));
    EXPECT_EQ(chooser.chooseColor(0xFFFFFF), 0);

    // Custom colours defined in one call are gone in the next.
    QColorDialog::setCustomColor(0, QColor(Qt::red));
    QColor firstCustom;
    whenShown<QColorDialog>([&](QColorDialog& dialog) {
        firstCustom = QColorDialog::customColor(0);
        dialog.reject();
    });
    EXPECT_EQ(chooser.chooseColor(0), -1);
    EXPECT_EQ(firstCustom, QColor(Qt::black));
}
