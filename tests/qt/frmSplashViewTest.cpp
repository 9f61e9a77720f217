#include "qt/frmSplashView.h"

#include "support/QtInput.h"

#include <gtest/gtest.h>

TEST(frmSplashView, KeyPressFinishesTheSplash) {
    frmSplash form;
    frmSplashView splash(form);
    bool finished = false;
    QObject::connect(&splash, &frmSplashView::finished, [&finished] { finished = true; });
    showNow(splash); // the window takes its size before the key arrives
    key(splash, Qt::Key_Space, " ");
    EXPECT_TRUE(finished);
    EXPECT_TRUE(form.isClosed());
    EXPECT_FALSE(splash.isVisible());
}
