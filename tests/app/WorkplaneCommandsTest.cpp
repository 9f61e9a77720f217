#include "app/WorkplaneCommands.h"

#include "scene/WorkPlane.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

using Host = ScriptedModalHost;

TEST(WorkplaneCommands, ParameterCreationAddsTheAcceptedWorkplaneWithItsNode) {
    TestWindow w;
    const std::vector<std::string> command{"&Create", "&WorkPlane", "&Parameter Creation"};
    w.dialogs.queueDialog({Host::press("mnuCancel")});
    w.choose(command);
    EXPECT_TRUE(w.form.getDocument().workPlanes.empty());

    w.dialogs.queueDialog({Host::type("Text1", "2"), Host::type("Text2", "0.5"),
                           Host::type("Text3", "0"), Host::type("Text5", "1"),
                           Host::press("mnuAccept")});
    w.choose(command);
    ASSERT_EQ(w.form.getDocument().workPlanes.size(), 1u);
    EXPECT_EQ(w.form.getDocument().workPlanes[0]->getXRotation(), 0.5f);
    const auto node = w.form.getSceneTree().findSceneNode("w1");
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->text, "Workplane 1");
}
