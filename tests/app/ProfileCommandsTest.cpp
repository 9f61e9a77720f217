#include "app/ProfileCommands.h"

#include "app/SceneDocument.h"
#include "app/SelectionState.h"
#include "scene/Profile.h"
#include "scene/WorkPlane.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace {

struct Drawing {
    ScriptedPrompts prompts;
    SceneDocument document;
    SelectionState selection;
    ProfileCommands commands{document, selection};

    std::shared_ptr<WorkPlane> workPlane(float offset, float xRotation, float yRotation) {
        auto plane = std::make_shared<WorkPlane>();
        plane->initialize(1, xRotation, yRotation, offset, 0);
        return plane;
    }
};

PointRecord clicked(float x, float y, float z) {
    PointRecord r;
    r.coord = {x, y, z, 1};
    r.trans = {7, 7, 7, 7};
    return r;
}

} // namespace

TEST(ProfileCommands, PointsMoveByTheOneSelectedWorkplanesOffset) {
    Drawing d;
    d.commands.addProfilePoint(clicked(1, 2, 3)); // no current profile: nothing
    EXPECT_TRUE(d.prompts.messages().empty());

    d.document.currentProfile = std::make_shared<Profile>();
    d.commands.addProfilePoint(clicked(1, 2, 3));
    d.selection.selectedWorkplanes = {d.workPlane(0, 0, 0), d.workPlane(0, 0, 0)};
    d.commands.addProfilePoint(clicked(1, 2, 3));
    ASSERT_EQ(d.prompts.messages().size(), 2u);
    EXPECT_EQ(d.prompts.messages()[0].text.substr(0, 51),
              "Cannot add profile point since no workplanes were s");
    EXPECT_EQ(d.prompts.messages()[1].text.substr(0, 56),
              "Cannot add profile point since more than one workplane a");
    EXPECT_EQ(d.prompts.messages()[1].title, "Cannot add profile point");
    EXPECT_EQ(d.prompts.messages()[1].icon, MessageIcon::Information);
    EXPECT_EQ(d.document.currentProfile->getPointCount(), 0);

    d.selection.selectedWorkplanes = {d.workPlane(5, 0, 0)};
    d.commands.addProfilePoint(clicked(1, 2, 3));
    d.commands.addProfilePoint(clicked(0, 0, 0)); // a profile shows its points from two on
    const PointRecord added = d.document.currentProfile->getPointRecord(1);
    EXPECT_FLOAT_EQ(added.coord.x, 1);
    EXPECT_FLOAT_EQ(added.coord.y, 2);
    EXPECT_FLOAT_EQ(added.coord.z, -2);
    EXPECT_EQ(added.trans, added.coord);
}

TEST(ProfileCommands, ClosingWithoutACurrentProfileSaysSo) {
    Drawing d;
    EXPECT_FALSE(d.commands.closeProfile());
    ASSERT_EQ(d.prompts.messages().size(), 1u);
    EXPECT_EQ(d.prompts.messages()[0].title, "Error Closing Profile");
    EXPECT_EQ(d.prompts.messages()[0].icon, MessageIcon::None);
}
