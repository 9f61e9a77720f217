#include "qt/frmTolvaneView.h"

#include <QApplication>
#include <gtest/gtest.h>

TEST(frmTolvaneView, OpensCaptionedMainWindow) {
    frmTolvane form;
    frmTolvaneView window(form);
    window.show();
    EXPECT_EQ(window.windowTitle(), QString("Korvan Version 2.0"));
    EXPECT_TRUE(window.isVisible());
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
