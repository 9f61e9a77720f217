#include "app/ProfileCommands.h"

#include "geometry/CPoint3D.h"
#include "support/TestSolids.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

namespace {

using Host = ScriptedModalHost;

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
        const auto plane = makeWorkPlane(1, 0, 0);
        form.getDocument().workPlanes.push_back(plane);
        form.getSelection().setSelectedWorkplanes({plane});
        form.getProfileCommands().createProfile();
        for (int i = 0; i < points; ++i) {
            form.getProfileCommands().addProfilePoint(
                clicked(static_cast<float>(i), static_cast<float>(i * i), 0));
        }
        prompts.forget();
    }

    SceneDocument& document() { return form.getDocument(); }
    std::shared_ptr<Profile> current() { return document().currentProfile; }
    bool hasNode(const std::string& key) { return form.getSceneTree().findNode(key) != nullptr; }
    MousePointer mode() { return form.getMouse().getMouseMode().getMouseIcon(); }
};

} // namespace

TEST(ProfileCommands, ProfilesAndTheirPointsNeedOneSelectedWorkplaneAndMoveByItsOffset) {
    TestWindow w;
    w.form.getProfileCommands().addProfilePoint(clicked(1, 2, 3)); // no current profile: nothing
    w.form.getProfileCommands().setCurrentProfile(std::make_shared<Profile>());
    w.form.getProfileCommands().addProfilePoint(clicked(1, 2, 3));
    w.form.getSelection().setSelectedWorkplanes({makeWorkPlane(1, 0, 0), makeWorkPlane(1, 0, 0)});
    w.form.getProfileCommands().addProfilePoint(clicked(1, 2, 3));
    w.choose({"&Create", "&Profile"}); // then the workplanes outside the document are forgotten
    w.popup(3, {"&Profile"});
    const auto& messages = w.prompts.messages();
    ASSERT_EQ(messages.size(), 4u);
    EXPECT_EQ(messages[0].text.substr(0, 44), "Cannot add profile point since no workplanes");
    EXPECT_EQ(messages[1].text.substr(0, 49), "Cannot add profile point since more than one work");
    EXPECT_EQ(messages[2].text.substr(0, 26), "Only one workplane can be ");
    EXPECT_EQ(messages[3].text.substr(0, 18), "No workplane was s");
    EXPECT_EQ(w.form.getDocument().currentProfile->getPointCount(), 0);
    EXPECT_TRUE(w.form.getDocument().profiles.empty());
    EXPECT_EQ(w.form.getMouse().getMouseMode().getMouseIcon(),
              MousePointer::Crosshair); // the tool stays

    w.form.getSelection().setSelectedWorkplanes({makeWorkPlane(1, 0.25f, 0.5f)});
    w.canvases[3].forget();
    w.choose({"&Create", "&Profile"});
    ASSERT_EQ(w.form.getDocument().profiles.size(), 1u);
    EXPECT_EQ(w.form.getDocument().currentProfile, w.form.getDocument().profiles[0]);
    EXPECT_EQ(w.form.getViewports().viewSpecs(4).EyePhi, 0.25f);
    EXPECT_EQ(w.form.getViewports().viewSpecs(4).EyeTheta,
              static_cast<float>(0.5f + 1.570796326794895));
    EXPECT_EQ(w.form.getViewports().viewSpecs(3).EyePhi, 0.0f); // the other views stay
    EXPECT_FALSE(w.canvases[3].calls().empty());                // redrawn

    // The offset vector is (offset cos x sin y, -offset sin x, -offset cos x cos y).
    const float quarter = static_cast<float>(3.14159265358979 / 2);
    const float cases[][6] = {{0, 0.4f, 0.7f, 1, 2, 3},
                              {5, 0, 0, 1, 2, -2},
                              {5, 0, quarter, 6, 2, 3},
                              {5, quarter, 0, 1, -3, 3}};
    for (const auto& [offset, xRotation, yRotation, x, y, z] : cases) {
        SCOPED_TRACE(testing::Message() << offset << " " << xRotation << " " << yRotation);
        auto profile = std::make_shared<Profile>();
        w.form.getProfileCommands().setCurrentProfile(profile);
        w.form.getSelection().setSelectedWorkplanes(
            {makeWorkPlane(1, xRotation, yRotation, offset)});
        w.form.getProfileCommands().addProfilePoint(clicked(1, 2, 3));
        w.form.getProfileCommands().addProfilePoint(
            clicked(0, 0, 0)); // a profile shows its points from two on
        const PointRecord added = profile->getPointRecord(1);
        EXPECT_NEAR(added.coord.x, x, 1e-5);
        EXPECT_NEAR(added.coord.y, y, 1e-5);
        EXPECT_NEAR(added.coord.z, z, 1e-5);
        EXPECT_EQ(added.trans, added.coord);
    }
}

TEST(ProfileCommands, ClosingEndsTheProfileWhereItBeganOnceItHasTwoPoints) {
    Drawing one(1);
    one.form.Form_KeyDown(67);
    EXPECT_EQ(one.current()->getPointCount(), 1); // too short to close

    // Confirmed counter-clockwise: stored the other way round, with its tree node.
    Drawing three(3);
    const auto corners = three.current()->getPoints();
    three.dialogs.queueDialog({Host::choose("optCCW"), Host::press("mnuConfirm")});
    three.choose({"&Profile", "&Close Profile"});
    const auto closed = three.current()->getPoints();
    ASSERT_EQ(closed.size(), 4u);
    EXPECT_EQ(closed[0], corners[0]);
    EXPECT_EQ(closed[1], corners[2]);
    EXPECT_EQ(closed[3], corners[0]); // the first point object again
    ASSERT_TRUE(three.hasNode("r1"));
    const auto& pointNodes = three.form.getSceneTree().findSceneNode("r1")->children();
    ASSERT_EQ(pointNodes.size(), 4u);
    EXPECT_EQ(pointNodes[1]->children().front()->text, closed[1]->toString()); // as stored
    EXPECT_EQ(three.mode(), MousePointer::Default);
    // Closed again, it keeps one node, which lists its points as they are now; Cancel
    // Profile takes the node too, found by the profile: after an Open the profiles drawn
    // before have no nodes, so the list's length names none.
    three.dialogs.queueDialog({Host::choose("optCW"), Host::press("mnuConfirm")});
    three.form.Form_KeyDown(67);
    const auto& nodes = three.form.getSceneTree().root().children();
    ASSERT_EQ(nodes.size(), 1u); // the workplane was put in the document without its node
    EXPECT_EQ(nodes.back()->key, "r1");
    EXPECT_EQ(nodes.back()->children().size(), 5u);
    EXPECT_EQ(three.form.history().stepCount(), 1u); // closing again is no step of its own
    const std::vector<std::shared_ptr<Profile>> opened{std::make_shared<Profile>()};
    three.document().profiles.insert(three.document().profiles.begin(), opened[0]);
    const auto drawn = three.current();
    three.prompts.queueAnswer(MessageAnswer::Yes);
    three.choose({"&Profile", "C&ancel Profile"});
    EXPECT_EQ(three.document().profiles, opened);
    // Undone, the cancel brings the profile back to its place as the current one; the close
    // undone takes it out.
    three.choose({"&Edit", "&Undo"});
    EXPECT_EQ(three.document().profiles, (std::vector<std::shared_ptr<Profile>>{opened[0], drawn}));
    EXPECT_EQ(three.current(), drawn);
    EXPECT_EQ(three.form.history().undoName(), "Close Profile");
    three.choose({"&Edit", "&Undo"});
    EXPECT_EQ(three.document().profiles, opened);

    // Cancelled: the profile leaves the document (and its tree node: the monkey's).
    Drawing cancelled(3);
    cancelled.document().profiles.insert(cancelled.document().profiles.begin(), opened[0]);
    cancelled.dialogs.queueDialog({Host::press("mnuCancel")});
    cancelled.form.Form_KeyDown(67);
    EXPECT_EQ(cancelled.document().profiles, opened);
}

TEST(ProfileCommands, RedrawAndCancelAskFirstAndNeedACurrentProfile) {
    TestWindow w;
    w.choose({"&Profile", "&Redraw Profile"});
    w.form.getDocument().profiles.push_back(std::make_shared<Profile>()); // none current
    w.choose({"&Profile", "C&ancel Profile"});
    ASSERT_EQ(w.prompts.messages().size(), 2u);
    EXPECT_EQ(w.prompts.messages()[0].text, "Error, no profiles found to redraw.");
    EXPECT_EQ(w.prompts.messages()[1].text, "Error, no profiles found to cancel.");
    EXPECT_EQ(w.form.getDocument().profiles.size(), 1u);

    Drawing d(2);
    const auto first = d.current();
    d.choose({"&Profile", "C&ancel Profile"}); // unanswered: No
    EXPECT_EQ(d.current(), first);
    d.prompts.queueAnswer(MessageAnswer::Yes);
    d.choose({"&Profile", "&Redraw Profile"});
    ASSERT_EQ(d.prompts.messages().size(), 2u);
    EXPECT_EQ(d.prompts.messages()[0].text, "Are you sure you want to cancel your profile?");
    EXPECT_EQ(d.prompts.messages()[0].buttons, MessageButtons::YesNoDefaultNo); // Enter: No
    EXPECT_EQ(d.prompts.messages()[1].text, "Are you sure you want to redraw your profile?");
    ASSERT_EQ(d.document().profiles.size(), 1u);
    EXPECT_NE(d.current(), first); // a new, empty profile in its place
    EXPECT_EQ(d.mode(), MousePointer::Crosshair);
}
