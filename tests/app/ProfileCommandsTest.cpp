#include "app/ProfileCommands.h"

#include "geometry/CPoint3D.h"
#include "scene/Profile.h"
#include "scene/WorkPlane.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

namespace {

using Host = ScriptedModalHost;

std::shared_ptr<WorkPlane> workPlane(float offset, float xRotation, float yRotation) {
    auto plane = std::make_shared<WorkPlane>();
    plane->initialize(1, xRotation, yRotation, offset, 0);
    return plane;
}

PointRecord clicked(float x, float y, float z) {
    PointRecord r;
    r.coord = {x, y, z, 1};
    r.trans = {7, 7, 7, 7};
    return r;
}

// A window with one selected workplane through the origin and a current profile of the
// given number of points.
struct Drawing : TestWindow {
    explicit Drawing(int points) {
        const auto plane = workPlane(0, 0, 0);
        form.getDocument().workPlanes.push_back(plane);
        form.setSelectedWorkplanes({plane});
        form.createProfile();
        for (int i = 0; i < points; ++i) {
            form.addProfilePoint(clicked(static_cast<float>(i), static_cast<float>(i * i), 0));
        }
        prompts.forget();
    }

    SceneDocument& document() { return form.getDocument(); }
    std::shared_ptr<Profile> current() { return document().currentProfile; }
    bool hasNode(const std::string& key) { return form.getSceneTree().findNode(key) != nullptr; }
};

} // namespace

TEST(ProfileCommands, PointsMoveByTheOneSelectedWorkplanesOffset) {
    TestWindow w;
    w.form.addProfilePoint(clicked(1, 2, 3)); // no current profile: nothing
    EXPECT_TRUE(w.prompts.messages().empty());

    w.form.setCurrentProfile(std::make_shared<Profile>());
    w.form.addProfilePoint(clicked(1, 2, 3));
    w.form.setSelectedWorkplanes({workPlane(0, 0, 0), workPlane(0, 0, 0)});
    w.form.addProfilePoint(clicked(1, 2, 3));
    ASSERT_EQ(w.prompts.messages().size(), 2u);
    EXPECT_EQ(w.prompts.messages()[0].text.substr(0, 51),
              "Cannot add profile point since no workplanes were s");
    EXPECT_EQ(w.prompts.messages()[1].text.substr(0, 56),
              "Cannot add profile point since more than one workplane a");
    EXPECT_EQ(w.prompts.messages()[1].title, "Cannot add profile point");
    EXPECT_EQ(w.prompts.messages()[1].icon, MessageIcon::Information);
    EXPECT_EQ(w.form.getDocument().currentProfile->getPointCount(), 0);

    // The offset vector is (offset cos x sin y, -offset sin x, -offset cos x cos y).
    const float quarter = static_cast<float>(3.14159265358979 / 2);
    struct Case {
        float offset, xRotation, yRotation, x, y, z;
    };
    for (const Case c : {Case{0, 0.4f, 0.7f, 1, 2, 3}, Case{5, 0, 0, 1, 2, -2},
                         Case{5, 0, quarter, 6, 2, 3}, Case{5, quarter, 0, 1, -3, 3}}) {
        auto profile = std::make_shared<Profile>();
        w.form.setCurrentProfile(profile);
        w.form.setSelectedWorkplanes({workPlane(c.offset, c.xRotation, c.yRotation)});
        w.form.addProfilePoint(clicked(1, 2, 3));
        w.form.addProfilePoint(clicked(0, 0, 0)); // a profile shows its points from two on
        const PointRecord added = profile->getPointRecord(1);
        EXPECT_NEAR(added.coord.x, c.x, 1e-5)
            << c.offset << " " << c.xRotation << " " << c.yRotation;
        EXPECT_NEAR(added.coord.y, c.y, 1e-5)
            << c.offset << " " << c.xRotation << " " << c.yRotation;
        EXPECT_NEAR(added.coord.z, c.z, 1e-5)
            << c.offset << " " << c.xRotation << " " << c.yRotation;
        EXPECT_EQ(added.trans, added.coord);
    }
}

TEST(ProfileCommands, CreateProfileNeedsExactlyOneSelectedWorkplane) {
    TestWindow w;
    w.choose({"&Create", "&Profile"});
    ASSERT_EQ(w.prompts.messages().size(), 1u);
    EXPECT_EQ(w.prompts.messages()[0].text,
              "No workplane was selected for profile creation.  Please select a workplane by "
              "using the workplane selector.");
    EXPECT_EQ(w.prompts.messages()[0].title, "Cannot create profile");
    EXPECT_EQ(w.prompts.messages()[0].icon, MessageIcon::Information);
    EXPECT_EQ(w.form.getMouseMode().getMouseIcon(), MousePointer::Crosshair); // the tool stays

    w.form.setSelectedWorkplanes({workPlane(0, 0, 0), workPlane(0, 0, 0)});
    w.popup(3, {"&Profile"});
    ASSERT_EQ(w.prompts.messages().size(), 2u);
    EXPECT_EQ(w.prompts.messages()[1].text,
              "Only one workplane can be selected for use in profile creation.  Please "
              "reselect one workplane to continue.");
    EXPECT_EQ(w.prompts.messages()[1].title, "Cannot create profile");
    EXPECT_TRUE(w.form.getDocument().profiles.empty());
    EXPECT_EQ(w.form.getDocument().currentProfile, nullptr);

    w.form.setSelectedWorkplanes({workPlane(0, 0.25f, 0.5f)});
    w.canvases[3].forget();
    w.choose({"&Create", "&Profile"});
    ASSERT_EQ(w.form.getDocument().profiles.size(), 1u);
    EXPECT_EQ(w.form.getDocument().currentProfile, w.form.getDocument().profiles[0]);
    EXPECT_EQ(w.form.getViewSpecs(4).EyePhi, 0.25f);
    EXPECT_EQ(w.form.getViewSpecs(4).EyeTheta, static_cast<float>(0.5f + 1.570796326794895));
    EXPECT_EQ(w.form.getViewSpecs(3).EyePhi, 0.0f); // the other views stay
    EXPECT_FALSE(w.canvases[3].calls().empty());    // redrawn
}

TEST(ProfileCommands, ClosingEndsTheProfileWhereItBeganOnceItHasTwoPoints) {
    Drawing one(1);
    one.form.Form_KeyDown(67);
    EXPECT_TRUE(one.dialogs.shown().empty());
    EXPECT_EQ(one.current()->getPointCount(), 1);

    // Confirmed counter-clockwise: stored the other way round, with its tree node.
    Drawing three(3);
    const auto corners = three.current()->getPoints();
    three.dialogs.queueDialog({Host::choose("optCCW"), Host::press("mnuConfirm")});
    three.choose({"&Profile", "&Close Profile"});
    EXPECT_EQ(three.dialogs.shown(), std::vector<std::string>{"Confirm Orientation"});
    const auto closed = three.current()->getPoints();
    ASSERT_EQ(closed.size(), 4u);
    EXPECT_EQ(closed[0], corners[0]);
    EXPECT_EQ(closed[1], corners[2]);
    EXPECT_EQ(closed[3], corners[0]); // the first point object again
    ASSERT_TRUE(three.hasNode("r1"));
    const auto& pointNodes = three.form.getSceneTree().findSceneNode("r1")->children();
    ASSERT_EQ(pointNodes.size(), 4u);
    EXPECT_EQ(pointNodes[1]->children().front()->text, closed[1]->toString()); // as stored
    EXPECT_EQ(three.document().profiles.size(), 1u);
    EXPECT_EQ(three.form.getMouseMode().getMouseIcon(), MousePointer::Default);

    // Cancelled: the profile leaves the document and the tree, and is no longer current.
    Drawing cancelled(3);
    cancelled.dialogs.queueDialog({Host::press("mnuCancel")});
    cancelled.form.Form_KeyDown(67);
    EXPECT_TRUE(cancelled.document().profiles.empty());
    EXPECT_FALSE(cancelled.hasNode("r1"));
    EXPECT_EQ(cancelled.current(), nullptr);
    EXPECT_EQ(cancelled.form.getMouseMode().getMouseIcon(), MousePointer::Default);
}

TEST(ProfileCommands, RedrawAndCancelAskFirstAndNeedACurrentProfile) {
    TestWindow w;
    w.choose({"&Profile", "&Redraw Profile"});
    w.form.getDocument().profiles.push_back(std::make_shared<Profile>()); // none current
    w.choose({"&Profile", "C&ancel Profile"});
    ASSERT_EQ(w.prompts.messages().size(), 2u);
    EXPECT_EQ(w.prompts.messages()[0].text, "Error, no profiles found to redraw.");
    EXPECT_EQ(w.prompts.messages()[0].title, "Error redrawing profile");
    EXPECT_EQ(w.prompts.messages()[1].text, "Error, no profiles found to cancel.");
    EXPECT_EQ(w.prompts.messages()[1].title, "Error redrawing profile");
    EXPECT_EQ(w.form.getDocument().profiles.size(), 1u);

    Drawing d(2);
    const auto first = d.current();
    d.choose({"&Profile", "C&ancel Profile"}); // unanswered: No
    ASSERT_EQ(d.prompts.messages().size(), 1u);
    EXPECT_EQ(d.prompts.messages()[0].text, "Are you sure you want to cancel your profile?");
    EXPECT_EQ(d.prompts.messages()[0].title, "Canceling Profile");
    EXPECT_EQ(d.prompts.messages()[0].buttons, MessageButtons::YesNoDefaultNo);
    EXPECT_EQ(d.current(), first);

    d.prompts.queueAnswer(MessageAnswer::Yes);
    d.choose({"&Profile", "&Redraw Profile"});
    ASSERT_EQ(d.prompts.messages().size(), 2u);
    EXPECT_EQ(d.prompts.messages()[1].text, "Are you sure you want to redraw your profile?");
    EXPECT_EQ(d.prompts.messages()[1].title, "Redrawing Profile");
    ASSERT_EQ(d.document().profiles.size(), 1u);
    EXPECT_NE(d.current(), first); // a new, empty profile in its place
    EXPECT_EQ(d.current(), d.document().profiles[0]);
    EXPECT_EQ(d.form.getMouseMode().getMouseIcon(), MousePointer::Crosshair);

    d.prompts.queueAnswer(MessageAnswer::Yes);
    d.choose({"&Profile", "C&ancel Profile"});
    EXPECT_TRUE(d.document().profiles.empty());
    EXPECT_EQ(d.current(), nullptr);
    EXPECT_EQ(d.form.getMouseMode().getMouseIcon(), MousePointer::Default);
    // Nothing is left to close.
    d.form.Form_KeyDown(67);
    EXPECT_EQ(d.prompts.messages().back().title, "Error Closing Profile");
}

TEST(ProfileCommands, ClosingAgainKeepsOneNodeListingEveryPoint) {
    Drawing d(3);
    d.dialogs.queueDialog({Host::choose("optCW"), Host::press("mnuConfirm")});
    d.dialogs.queueDialog({Host::choose("optCW"), Host::press("mnuConfirm")});
    d.form.Form_KeyDown(67);
    d.form.Form_KeyDown(67);
    EXPECT_TRUE(d.hasNode("r1"));
    EXPECT_FALSE(d.hasNode("r2"));
    const auto& nodes = d.form.getSceneTree().root().children();
    ASSERT_EQ(nodes.size(), 1u); // the workplane was put in the document without its node
    EXPECT_EQ(nodes.back()->children().size(), 5u);
}

TEST(ProfileCommands, CancellingTakesTheProfilesOwnNodeWhenOthersHaveNone) {
    // After Open the tree holds only the opened solids; profiles drawn before have no node.
    Drawing d(3);
    const auto before = d.current();
    d.dialogs.queueDialog({Host::choose("optCW"), Host::press("mnuConfirm")});
    d.form.closeProfile();
    d.form.getSceneTree().removeAllNodes();
    d.form.createProfile();
    for (int i = 0; i < 3; ++i) {
        d.form.addProfilePoint(clicked(static_cast<float>(i), 1, 0));
    }
    d.dialogs.queueDialog({Host::press("mnuCancel")});
    d.form.closeProfile();
    EXPECT_EQ(d.document().profiles, std::vector<std::shared_ptr<Profile>>{before});
    EXPECT_TRUE(d.form.getSceneTree().root().children().empty());

    // Cancel Profile on a closed one, whose node is r1 though it is second in the list.
    d.form.createProfile();
    for (int i = 0; i < 3; ++i) {
        d.form.addProfilePoint(clicked(static_cast<float>(i), 2, 0));
    }
    d.dialogs.queueDialog({Host::choose("optCW"), Host::press("mnuConfirm")});
    d.form.closeProfile();
    ASSERT_TRUE(d.hasNode("r1"));
    d.prompts.queueAnswer(MessageAnswer::Yes);
    d.choose({"&Profile", "C&ancel Profile"});
    EXPECT_EQ(d.document().profiles, std::vector<std::shared_ptr<Profile>>{before});
    EXPECT_FALSE(d.hasNode("r1"));
}

TEST(ProfileCommands, CancellingAClosedProfileTakesItsNodeToo) {
    Drawing d(3);
    d.dialogs.queueDialog({Host::choose("optCW"), Host::press("mnuConfirm")});
    d.form.closeProfile();
    ASSERT_TRUE(d.hasNode("r1"));
    d.prompts.queueAnswer(MessageAnswer::Yes);
    d.choose({"&Profile", "C&ancel Profile"});
    EXPECT_TRUE(d.document().profiles.empty());
    EXPECT_FALSE(d.hasNode("r1"));
}
