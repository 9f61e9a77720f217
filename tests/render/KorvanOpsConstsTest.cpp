#include "render/KorvanOpsConsts.h"

#include "geometry/M3Ops.h"
#include "support/RecordingCanvas.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace {

Point4 project(const Canvas& canvas, const ViewSpecs& view, float x, float y, float z) {
    Point4 q;
    M3Ops::transformPoint(Point4{x, y, z, 1}, KorvanOpsConsts::getFullViewMatrix(canvas, view), q);
    return q;
}

} // namespace

TEST(KorvanOpsConsts, StandardViewsOrientTheWorldAxes) {
    RecordingCanvas canvas(400, 300);
    // Front: right is +x, up is +y. Side: right is -z, up is +y. Top: the tiny horizontal
    // offset of cos(pi/2) fixes right as +z and up as +x.
    const std::tuple<int, float, float, float, int, int> axes[] = {
        {KorvanOpsConsts::viewFront, 1, 0, 0, 1, 0}, {KorvanOpsConsts::viewFront, 0, 1, 0, 0, -1},
        {KorvanOpsConsts::viewSide, 0, 0, -1, 1, 0}, {KorvanOpsConsts::viewSide, 0, 1, 0, 0, -1},
        {KorvanOpsConsts::viewTop, 0, 0, 1, 1, 0},   {KorvanOpsConsts::viewTop, 1, 0, 0, 0, -1}};
    for (const auto& [viewConst, x, y, z, dx, dy] : axes) {
        ViewSpecs view{.ProjectionType = 0};
        KorvanOpsConsts::setOrthoView(viewConst, view);
        const Point4 centre = project(canvas, view, 0, 0, 0);
        const Point4 p = project(canvas, view, x, y, z);
        EXPECT_NEAR(p.x - centre.x, dx * view.zoom, 1e-2) << viewConst << ": " << x << y << z;
        EXPECT_NEAR(p.y - centre.y, dy * view.zoom, 1e-2) << viewConst << ": " << x << y << z;
    }
}

TEST(KorvanOpsConsts, SetOrthoViewRejectsUnknownViewsAndResetsIsometricDistance) {
    ScriptedPrompts prompts;
    ViewSpecs view;
    view.EyeR = 25;
    view.EyeTheta = 1;
    const ViewSpecs before = view;
    KorvanOpsConsts::setOrthoView(5, view);
    EXPECT_EQ(view, before);
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text,
              "Invalid setOrthoView viewConst Parameter.  View Change not performed.");
    EXPECT_EQ(prompts.messages()[0].title, "SetOrthoView Error");

    KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewTop, view);
    EXPECT_EQ(view.EyeR, 25.0f);
    KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewIsometric, view);
    EXPECT_EQ(view.EyeR, 10.0f);
    EXPECT_EQ(view.EyeTheta, static_cast<float>(0.6283185307179581));
}
