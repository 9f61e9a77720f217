#include "modelling/frmProfileProperty.h"

#include "geometry/CPoint3D.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSolids.h"

#include <gtest/gtest.h>

namespace {

using User = ScriptedModalHost;
using Names = std::vector<std::string>;

struct frmProfilePropertyOnABC : testing::Test {
    std::shared_ptr<Profile> profile = makeProfile({{1, 0, 3, 1}, {2, 0, 0, 1}, {3, 0, 0, 1}});
    std::shared_ptr<CPoint3D> a = profile->getCPoint(1), b = profile->getCPoint(2),
                              c = profile->getCPoint(3);
    ScriptedPrompts prompts;
    ScriptedModalHost host;
    frmProfileProperty dialog;

    void SetUp() override { dialog.initialize(profile); }
    // The working list as the list box shows it, one point name per line.
    Names shown() const {
        Names names;
        for (const std::string& line : dialog.listPointIndex.items) {
            const std::string text = line.substr(line.find(": ") + 2);
            names.push_back(text == a->toString()   ? "A"
                            : text == b->toString() ? "B"
                            : text == c->toString() ? "C"
                                                    : text);
        }
        return names;
    }
};

} // namespace

TEST_F(frmProfilePropertyOnABC, UpAndDownWrapAroundAndKeepTheMovedPointSelected) {
    const std::tuple<int, const char*, Names, int> steps[] = {
        {0, "cmdUp", {"B", "C", "A"}, 2},       {2, "cmdDown", {"A", "B", "C"}, 0},
        {1, "cmdDown", {"A", "C", "B"}, 2},     {2, "cmdUp", {"A", "B", "C"}, 1},
        {-1, "cmdUp", {"A", "B", "C"}, -1},     {-1, "cmdDown", {"A", "B", "C"}, -1},
        {-1, "cmdRemove", {"A", "B", "C"}, -1}, {-1, "cmdModify", {"A", "B", "C"}, -1}};
    for (const auto& [line, button, names, selected] : steps) {
        SCOPED_TRACE(::testing::Message() << button << " on line " << line);
        dialog.pickListLine("listPointIndex", line);
        dialog.press(button);
        EXPECT_EQ(shown(), names);
        EXPECT_EQ(dialog.listPointIndex.ListIndex, selected);
    }
    EXPECT_TRUE(prompts.inputBoxes().empty());
    // The working list reaches the profile only on Accept.
    EXPECT_EQ(profile->getPoints(), (CPointList{a, b, c}));
}

TEST_F(frmProfilePropertyOnABC, PointEntryAsksAgainForTextsThatAreNoNumbersAndGivesUpWhenEmpty) {
    // x is asked again after "abc"; an empty y, or a cancelled z, adds nothing.
    prompts.queueInput("abc", "4", "", "4", "5", std::nullopt, "4", " -5 ", "6e0");
    for (int i = 0; i < 3; ++i) {
        dialog.press("cmdAdd");
    }
    ASSERT_EQ(prompts.inputBoxes().size(), 9u);
    EXPECT_EQ(prompts.inputBoxes()[1].prompt, "Enter X value:");
    EXPECT_EQ(prompts.inputBoxes()[2].prompt, "Enter Y value:");
    EXPECT_EQ(prompts.inputBoxes()[2].title, "Y Coordinate Input");
    EXPECT_EQ(prompts.inputBoxes()[2].defaultText, "0");
    EXPECT_EQ(prompts.inputBoxes()[5].prompt, "Enter Z value:");
    EXPECT_EQ(dialog.listPointIndex.items,
              (Names{"Point1: X:1, Y:0,Z:3", "Point2: X:2, Y:0,Z:0", "Point3: X:3, Y:0,Z:0",
                     "Point4: X:4, Y:-5,Z:6"}));
    EXPECT_EQ(profile->getPointCount(), 3);
}

TEST_F(frmProfilePropertyOnABC, ModifyChangesTheSharedPointAtOnceEvenWhenCancelled) {
    dialog.pickListLine("listPointIndex", 0);
    prompts.queueInput("7", "8", "9");
    host.queueDialog({User::press("cmdModify"), User::pick("listPointIndex", 2),
                      User::press("cmdRemove"), User::press("mnuCancel")});
    host.showModal(dialog);
    // Defaults are the point's own coordinates.
    ASSERT_EQ(prompts.inputBoxes().size(), 3u);
    EXPECT_EQ(prompts.inputBoxes()[0].defaultText, "1");
    EXPECT_EQ(prompts.inputBoxes()[2].defaultText, "3");
    EXPECT_EQ(a->getRecord().coord, (Point4{7, 8, 9, 1}));
    EXPECT_EQ(profile->getPoints(), (CPointList{a, b, c})); // the removal was cancelled
}

TEST(frmProfileProperty, AcceptWritesTheListSwitchedAndVisibility) {
    ScriptedModalHost host;
    const auto closed = makeProfile({{0, 0, 0, 1}, {1, 0, 0, 1}, {0, 1, 0, 1}}, true);
    const auto a = closed->getCPoint(1), b = closed->getCPoint(2), c = closed->getCPoint(3);
    frmProfileProperty dialog;
    dialog.initialize(closed);
    host.queueDialog({User::check("chkSwitchOrientation", true), User::check("chkVisible", false),
                      User::pick("listPointIndex", 0), User::press("cmdRemove"),
                      User::press("mnuAccept")});
    host.showModal(dialog);
    EXPECT_EQ(closed->getPoints(), (CPointList{a, c, b}));
    EXPECT_FALSE(closed->isVisible());
}
