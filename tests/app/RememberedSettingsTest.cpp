#include "app/RememberedSettings.h"

#include "support/MemorySettings.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

TEST(RememberedSettings, WhatTheUserLeftComesBackOnlyWhileTheItemIsChecked) {
    MemorySettings store;
    {
        TestWindow left;
        EXPECT_FALSE(left.form.attachSettings(store));
        left.choose({"&Options", "&Remember Settings"});
        left.choose({"&Options", "&Set Viewports", "&Four Windows"});
        left.popup(1, {"&Projection Type", "P&arallel"});
        left.popup(2, {"&Display", "&WireFrame"});
        left.choose({"&View", "&Display", "&Grid"});
        left.form.getMouse().setMouseSensivity(1.0f / 37);
        left.form.saveSettings({-10, 20, 900, 700});
    }
    TestWindow back;
    const auto window = back.form.attachSettings(store);
    ASSERT_TRUE(window);
    EXPECT_EQ(window->x, -10);
    EXPECT_EQ(window->height, 700);
    EXPECT_TRUE(back.form.getMenus().item("mnuRememberSettings").isChecked());
    EXPECT_EQ(back.form.getViewports().viewportLayout, 4);
    EXPECT_EQ(back.form.getViewports().viewSpecs(2).ProjectionType, 0);
    EXPECT_TRUE(back.form.getViewports().viewSpecs(3).wireFrame);
    EXPECT_TRUE(back.form.getMenus().item("mnuPopupWireFrame").isChecked());
    EXPECT_FALSE(back.form.getMenus().item("mnuGrid").isChecked());
    EXPECT_EQ(back.form.getMouse().getMouseSensivity(), 1.0f / 37);

    back.choose({"&Options", "&Remember Settings"});
    back.form.saveSettings({0, 0, 100, 100});
    TestWindow off;
    EXPECT_FALSE(off.form.attachSettings(store));
    EXPECT_EQ(off.form.getViewports().viewportLayout, 1);
    EXPECT_EQ(off.form.getMouse().getMouseSensivity(), 0.0025f);
    EXPECT_EQ(store.getInt("Window/X"), -10);
}

TEST(RememberedSettings, ValuesOfTheWrongTypeOrOutOfRangeKeepTheirStartUpValueOneByOne) {
    MemorySettings store;
    store.values = {{"RememberSettings", true},
                    {"Viewports/Layout", 2},
                    {"View1/Projection", 7},
                    {"View2/Projection", std::string("0")},
                    {"View1/Wireframe", 1},
                    {"Menu/mnuGrid", 0},
                    {"Mouse/SensitivityStep", 1001},
                    {"Window/X", 0},
                    {"Window/Y", 0},
                    {"Window/Width", 99},
                    {"Window/Height", 600},
                    {"View4/Projection", 0}};
    TestWindow w;
    EXPECT_FALSE(w.form.attachSettings(store));
    const ViewportSet& viewports = w.form.getViewports();
    EXPECT_EQ(viewports.viewportLayout, 1);
    EXPECT_EQ(viewports.viewSpecs(1).ProjectionType, 1);
    EXPECT_EQ(viewports.viewSpecs(2).ProjectionType, 1);
    EXPECT_FALSE(viewports.viewSpecs(1).wireFrame);
    EXPECT_TRUE(w.form.getMenus().item("mnuGrid").isChecked());
    EXPECT_EQ(w.form.getMouse().getMouseSensivity(), 0.0025f);
    EXPECT_EQ(viewports.viewSpecs(4).ProjectionType, 0);
}
