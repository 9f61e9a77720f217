#include "modelling/frmProfileProperty.h"

#include "geometry/CPoint3D.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace {

using User = ScriptedModalHost;

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
    std::vector<std::string> shown() const {
        std::vector<std::string> names;
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

using Names = std::vector<std::string>;

} // namespace

TEST_F(frmProfilePropertyOnABC, UpAndDownWrapAround) {
    dialog.pickListLine("listPointIndex", 0);
    dialog.press("cmdUp");
    EXPECT_EQ(shown(), (Names{"B", "C", "A"}));
    EXPECT_EQ(dialog.listPointIndex.ListIndex, 2); // the moved point stays selected

    dialog.press("cmdDown");
    EXPECT_EQ(shown(), (Names{"A", "B", "C"}));
    EXPECT_EQ(dialog.listPointIndex.ListIndex, 0);

    dialog.pickListLine("listPointIndex", 1);
    dialog.press("cmdDown");
    EXPECT_EQ(shown(), (Names{"A", "C", "B"}));
    EXPECT_EQ(dialog.listPointIndex.ListIndex, 2);
    dialog.press("cmdUp");
    EXPECT_EQ(shown(), (Names{"A", "B", "C"}));
    EXPECT_EQ(dialog.listPointIndex.ListIndex, 1);

    // Without a selected line, nothing moves or goes.
    dialog.pickListLine("listPointIndex", -1);
    for (const char* button : {"cmdUp", "cmdDown", "cmdRemove", "cmdModify"}) {
        dialog.press(button);
    }
    EXPECT_EQ(shown(), (Names{"A", "B", "C"}));
    EXPECT_TRUE(prompts.inputPrompts().empty());
    // The working list reaches the profile only on Accept.
    EXPECT_EQ(profile->getPoints(), (CPointList{a, b, c}));
}

TEST_F(frmProfilePropertyOnABC, PointEntryAsksAgainForTextsThatAreNoNumbers) {
    // Add: x twice (abc is asked again), then an empty y gives up: nothing is added.
    prompts.queueInput("abc");
    prompts.queueInput("4");
    prompts.queueInput("");
    dialog.press("cmdAdd");
    ASSERT_EQ(prompts.inputBoxes().size(), 3u);
    EXPECT_EQ(prompts.inputBoxes()[1].prompt, "Enter X value:");
    EXPECT_EQ(prompts.inputBoxes()[1].title, "X Coordinate Input");
    EXPECT_EQ(prompts.inputBoxes()[1].defaultText, "0");
    EXPECT_EQ(prompts.inputBoxes()[2].prompt, "Enter Y value:");
    EXPECT_EQ(prompts.inputBoxes()[2].title, "Y Coordinate Input");
    EXPECT_EQ(dialog.listPointIndex.items.size(), 3u);

    // A cancelled z gives up too.
    prompts.forget();
    for (const char* answer : {"4", "5"}) {
        prompts.queueInput(answer);
    }
    prompts.queueInput(std::nullopt);
    dialog.press("cmdAdd");
    ASSERT_EQ(prompts.inputBoxes().size(), 3u);
    EXPECT_EQ(prompts.inputBoxes()[2].prompt, "Enter Z value:");
    EXPECT_EQ(prompts.inputBoxes()[2].title, "Z Coordinate Input");
    EXPECT_EQ(dialog.listPointIndex.items.size(), 3u);

    for (const char* answer : {"4", " -5 ", "6e0"}) {
        prompts.queueInput(answer);
    }
    dialog.press("cmdAdd");
    ASSERT_EQ(dialog.listPointIndex.items.size(), 4u);
    EXPECT_EQ(dialog.listPointIndex.items[3], "Point4: X:4, Y:-5,Z:6");
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
    EXPECT_EQ(prompts.inputBoxes()[1].defaultText, "0");
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
                      User::press("mnuAccept")});
    host.showModal(dialog);
    EXPECT_EQ(closed->getPoints(), (CPointList{a, c, b, a}));
    EXPECT_FALSE(closed->isVisible());

    const auto emptied = profileOf({a, b});
    frmProfileProperty removing;
    removing.initialize(emptied);
    host.queueDialog({User::pick("listPointIndex", 1), User::press("cmdRemove"),
                      User::pick("listPointIndex", 0), User::press("cmdRemove"),
                      User::press("mnuAccept")});
    host.showModal(removing);
    EXPECT_EQ(emptied->getPointCount(), 0);
    EXPECT_TRUE(emptied->isVisible());
}
