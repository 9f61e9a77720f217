#include "app/MainMenu.h"

#include <gtest/gtest.h>

namespace {

// Every item as the path of its captions, with its check mark (+), disabled state (!) and
// shortcut, in menu order.
void list(const MenuItem& item, const std::string& path, std::vector<std::string>& out) {
    for (const auto& child : item.getChildren()) {
        std::string line = path + child->getCaption();
        line += child->isChecked() ? " +" : "";
        line += child->isEnabled() ? "" : " !";
        line += child->getShortcut() > 0 ? " F" + std::to_string(child->getShortcut()) : "";
        out.push_back(line);
        list(*child, path + child->getCaption() + "/", out);
    }
}

} // namespace

TEST(MainMenu, StartsWithTheCaptionsChecksAndShortcutsOfTheWindow) {
    MainMenu menus;
    std::vector<std::string> items;
    list(menus.getMenuBar(), "", items);
    const std::vector<std::string> expected = {"&File",
                                               "&File/&New",
                                               "&File/&Open",
                                               "&File/&Save",
                                               "&File/&Export To Bitmap",
                                               "&File/E&xit",
                                               "&Create",
                                               "&Create/&WorkPlane",
                                               "&Create/&WorkPlane/&Graphic Creation",
                                               "&Create/&WorkPlane/&Parameter Creation",
                                               "&Create/&Profile",
                                               "&Create/&Extrusion",
                                               "&Options",
                                               "&Options/&Set Mouse Sensivity",
                                               "&Options/&Set Viewports",
                                               "&Options/&Set Viewports/&One Window",
                                               "&Options/&Set Viewports/&Four Windows",
                                               "&View",
                                               "&View/&Projection Type",
                                               "&View/&Projection Type/P&arallel F1",
                                               "&View/&Projection Type/P&erspective F2",
                                               "&View/&Display",
                                               "&View/&Display/&Backface Removal + F3",
                                               "&View/&Display/&Wireframe F4",
                                               "&View/&Display/&Grid + F5",
                                               "&View/&Display/&Zero Axes + F6",
                                               "&View/&Display/&Reference Axes + F7",
                                               "&View/&Movement",
                                               "&View/&Movement/&Scoll",
                                               "&View/&Movement/&Rotate",
                                               "&View/&Movement/&Zoom",
                                               "-view popup-",
                                               "-view popup-/S&electors",
                                               "-view popup-/S&electors/S&olid Selector",
                                               "-view popup-/S&electors/&Face Selector",
                                               "-view popup-/S&electors/&WorkPlane Selector",
                                               "-view popup-/S&electors/&Profile Selector",
                                               "-view popup-/S&electors/&Deselect All",
                                               "-view popup-/Se&t View",
                                               "-view popup-/Se&t View/&Top",
                                               "-view popup-/Se&t View/&Side",
                                               "-view popup-/Se&t View/&Front",
                                               "-view popup-/Se&t View/&Isometric",
                                               "-view popup-/&Projection Type",
                                               "-view popup-/&Projection Type/P&arallel",
                                               "-view popup-/&Projection Type/P&erspective",
                                               "-view popup-/&Display",
                                               "-view popup-/&Display/&Backface Removal +",
                                               "-view popup-/&Display/&WireFrame",
                                               "-view popup-/&Movement",
                                               "-view popup-/&Movement/&Scroll",
                                               "-view popup-/&Movement/&Rotate",
                                               "-view popup-/&Movement/&Zoom",
                                               "-view popup-/&Profile",
                                               "-view popup-/&Extrude",
                                               "&Selectors",
                                               "&Selectors/S&olid Selector",
                                               "&Selectors/&Face Selector",
                                               "&Selectors/&WorkPlane Selector",
                                               "&Selectors/&Profile Selector",
                                               "&Selectors/-",
                                               "&Selectors/&Deselect All",
                                               "&Selectors/-",
                                               "&Selectors/&Property <enter> !",
                                               "&Profile",
                                               "&Profile/&Close Profile",
                                               "&Profile/&Redraw Profile",
                                               "&Profile/C&ancel Profile"};
    EXPECT_EQ(items, expected);
    // The pop-up is never shown on the bar.
    EXPECT_FALSE(menus.getPopupMenu().isVisible());
    EXPECT_EQ(menus.getPopupMenu().getCaption(), "-view popup-");
}

TEST(MainMenu, ChoosingRunsTheCommandOfAnEnabledItemThenWhatFollowsEveryCommand) {
    MainMenu menus;
    std::vector<std::string> ran;
    menus.setAfterCommand([&] { ran.push_back("after"); });
    menus.bind("mnuFileNew", [&] { ran.push_back("new"); });
    menus.bind("mnuProperty", [&] { ran.push_back("property"); });
    menus.getMenuBar().findPath({"&File", "&New"})->click();
    menus.item("mnuProperty").click(); // disabled
    EXPECT_EQ(ran, (std::vector<std::string>{"new", "after"}));
    EXPECT_EQ(menus.getMenuBar().findPath({"&File", "&Nothing"}), nullptr);
}
