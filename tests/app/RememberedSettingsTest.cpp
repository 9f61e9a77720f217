#include "app/RememberedSettings.h"

#include "support/MemorySettings.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

namespace {

bool checked(TestWindow& w, const std::string& name) {
    return w.form.getMenus().item(name).isChecked();
}

// The start-up state, which a window without remembered settings must show.
void expectStartUp(TestWindow& w) {
    EXPECT_EQ(w.form.getViewports().viewportLayout, 1);
    for (int number = 1; number <= 4; ++number) {
        EXPECT_EQ(w.form.getViewports().viewSpecs(number).ProjectionType, 1) << number;
        EXPECT_TRUE(w.form.getViewports().viewSpecs(number).HideSurfaces) << number;
        EXPECT_FALSE(w.form.getViewports().viewSpecs(number).wireFrame) << number;
    }
    EXPECT_TRUE(checked(w, "mnuGrid"));
    EXPECT_FALSE(checked(w, "mnuPopupWireFrame"));
    EXPECT_EQ(w.form.getMouse().getMouseSensivity(), 0.0025f);
}

} // namespace

TEST(RememberedSettings, WhatTheUserLeftComesBackOnlyWhileTheItemIsChecked) {
    MemorySettings store;
    {
        TestWindow left;
        EXPECT_FALSE(left.form.attachSettings(store));
        EXPECT_FALSE(checked(left, "mnuRememberSettings"));
        left.choose({"&Options", "&Remember Settings"});
        EXPECT_EQ(store.getBool("RememberSettings"), true);
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
    EXPECT_EQ(window->y, 20);
    EXPECT_EQ(window->width, 900);
    EXPECT_EQ(window->height, 700);
    EXPECT_TRUE(checked(back, "mnuRememberSettings"));
    EXPECT_EQ(back.form.getViewports().viewportLayout, 4);
    EXPECT_EQ(back.form.getViewports().viewSpecs(2).ProjectionType, 0);
    EXPECT_EQ(back.form.getViewports().viewSpecs(1).ProjectionType, 1);
    EXPECT_TRUE(back.form.getViewports().viewSpecs(3).wireFrame);
    EXPECT_TRUE(checked(back, "mnuPopupWireFrame"));
    EXPECT_FALSE(checked(back, "mnuGrid"));
    EXPECT_EQ(back.form.getMouse().getMouseSensivity(), 1.0f / 37);

    back.choose({"&Options", "&Remember Settings"});
    EXPECT_EQ(store.getBool("RememberSettings"), false);
    back.form.saveSettings({0, 0, 100, 100});
    EXPECT_EQ(store.getInt("Window/X"), -10);
    TestWindow off;
    EXPECT_FALSE(off.form.attachSettings(store));
    expectStartUp(off);
}

TEST(RememberedSettings, ValuesOfTheWrongTypeOrOutOfRangeKeepTheirStartUpValueOneByOne) {
    MemorySettings store;
    store.values = {{"RememberSettings", true},
                    {"Viewports/Layout", 2},
                    {"View1/Projection", 7},
                    {"View2/Projection", std::string("0")},
                    {"View3/Projection", -1},
                    {"View1/Wireframe", 1},
                    {"View2/HideSurfaces", std::string("false")},
                    {"Menu/mnuGrid", 0},
                    {"Menu/mnuPopupWireFrame", std::string("true")},
                    {"Mouse/SensitivityStep", 1001},
                    {"Window/X", 0},
                    {"Window/Y", 0},
                    {"Window/Width", 99},
                    {"Window/Height", 600},
                    {"View4/Projection", 0}};
    TestWindow w;
    EXPECT_FALSE(w.form.attachSettings(store));
    EXPECT_EQ(w.form.getViewports().viewSpecs(4).ProjectionType, 0);
    w.form.getViewports().viewSpecs(4).ProjectionType = 1;
    expectStartUp(w);
    store.values["RememberSettings"] = std::string("true");
    TestWindow notOn;
    notOn.form.attachSettings(store);
    EXPECT_FALSE(checked(notOn, "mnuRememberSettings"));
    EXPECT_EQ(notOn.form.getViewports().viewSpecs(4).ProjectionType, 1);
}
