#include "qt/frmSplashView.h"

#include <QApplication>
#include <QKeyEvent>
#include <gtest/gtest.h>

TEST(frmSplashView, KeyPressFinishesTheSplash) {
    frmSplash form;
    frmSplashView splash(form);
    bool finished = false;
    QObject::connect(&splash, &frmSplashView::finished, [&finished] { finished = true; });
    splash.show();
    EXPECT_EQ(splash.windowTitle(), QString("Korvan Version 2"));
    // Let the window take its size before the key arrives.
    QApplication::processEvents();

    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ");
    QApplication::sendEvent(&splash, &press);
    EXPECT_TRUE(finished);
    EXPECT_TRUE(form.isClosed());
    EXPECT_FALSE(splash.isVisible());
}
