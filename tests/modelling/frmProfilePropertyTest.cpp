#include "modelling/frmProfileProperty.h"

#include "geometry/CPoint3D.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace {

using User = ScriptedModalHost;
using Names = std::vector<std::string>;

std::shared_ptr<CPoint3D> pointAt(float x, float y, float z) {
    auto point = std::make_shared<CPoint3D>();
    point->setRecord({Point4{x, y, z, 1}, {}, {}});
    return point;
}

std::shared_ptr<Profile> profileOf(const CPointList& points) {
    auto profile = std::make_shared<Profile>();
    for (const auto& point : points) {
        profile->addCPoint(point);
    }
    return profile;
}

struct frmProfilePropertyOnABC : testing::Test {
    std::shared_ptr<CPoint3D> a = pointAt(1, 0, 3), b = pointAt(2, 0, 0), c = pointAt(3, 0, 0);
    std::shared_ptr<Profile> profile = profileOf({a, b, c});
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
    for (const auto& answer : std::vector<std::optional<std::string>>{
             "abc", "4", "", "4", "5", std::nullopt, "4", " -5 ", "6e0"}) {
        prompts.queueInput(answer);
    }
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
    for (const char* answer : {"7", "8", "9"}) {
        prompts.queueInput(answer);
    }
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
    const auto a = pointAt(0, 0, 0), b = pointAt(1, 0, 0), c = pointAt(0, 1, 0);
    const auto closed = profileOf({a, b, c, a});
    frmProfileProperty dialog;
    dialog.initialize(closed);
    host.queueDialog({User::check("chkSwitchOrientation", true), User::check("chkVisible", false),
                      User::pick("listPointIndex", 0), User::press("cmdRemove"),
                      User::press("mnuAccept")});
    host.showModal(dialog);
    EXPECT_EQ(closed->getPoints(), (CPointList{a, c, b}));
    EXPECT_FALSE(closed->isVisible());
}
