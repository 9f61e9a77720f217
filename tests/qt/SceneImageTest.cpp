#include "app/SceneDocument.h"
#include "qt/QtCanvas.h"
#include "render/KorvanOpsConsts.h"
#include "render/ViewportRenderer.h"
#include "scene/Transformed3d.h"
#include "support/TestSolids.h"

#include <gtest/gtest.h>

TEST(SceneImage, NothingBehindTheEyeIsDrawn) {
    ViewSpecs view;
    KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewIsometric, view);
    SceneDocument document = SceneDocument::startUp();
    document.solids = {makeObject(makeCube(0.25f, 0.8f, 0.25f, -0.3f))};
    ViewportRenderer renderer;
    QtCanvas canvas(800, 600);
    renderer.redrawViewport(canvas, view, document.scene());
    // A cube beyond the eye, on the far side from the scene.
    float ex, ey, ez;
    KorvanOpsConsts::getEyePosition(view, ex, ey, ez);
    document.solids.push_back(makeObject(makeCube(1, ex * 1.5f, ey * 1.5f + 1, ez * 1.5f)));
    QtCanvas withHidden(800, 600);
    renderer.redrawViewport(withHidden, view, document.scene());
    EXPECT_EQ(withHidden.image(), canvas.image());
}
