#include "app/MainMenu.h"

#include <gtest/gtest.h>

TEST(MainMenu, ChoosingRunsTheCommandOfAnEnabledItemThenWhatFollowsEveryCommand) {
    MainMenu menus;
    std::vector<std::string> ran;
    menus.setAfterCommand([&] { ran.push_back("after"); });
    menus.bind("mnuFileNew", [&] { ran.push_back("new"); });
    menus.bind("mnuProperty", [&] { ran.push_back("property"); });
    menus.getMenuBar().findPath({"&File", "&New"})->click();
    menus.item("mnuProperty").click(); // disabled at start
    EXPECT_EQ(ran, (std::vector<std::string>{"new", "after"}));
    EXPECT_EQ(menus.getMenuBar().findPath({"&File", "&Nothing"}), nullptr);
    EXPECT_FALSE(menus.getPopupMenu().isVisible()); // the pop-up is never shown on the bar
}
