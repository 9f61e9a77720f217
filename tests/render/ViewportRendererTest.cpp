#include "render/ViewportRenderer.h"

#include "app/SceneDocument.h"
#include "render/GDIRegion.h"
#include "render/KorvanOpsConsts.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"
#include "support/RecordingCanvas.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSolids.h"

#include <gtest/gtest.h>

namespace {

using Kind = RecordingCanvas::Kind;

std::shared_ptr<Transformed3d> cubeObject(float h, float cx = 0, float cy = 0, float cz = 0) {
    auto object = std::make_shared<Transformed3d>();
    object->setSolid(makeCube(h, cx, cy, cz));
    object->SetDiffuseCoefficients(0.5f, 0.5f, 0.5f);
    object->SetAmbientCoefficients(0.5f, 0.5f, 0.5f);
    return object;
}

ViewSpecs standardView(int viewConst) {
    ViewSpecs view;
    KorvanOpsConsts::setOrthoView(viewConst, view);
    return view;
}

ViewSpecs isometric() {
    return standardView(KorvanOpsConsts::viewIsometric);
}

} // namespace

TEST(ViewportRenderer, DisplayModesDecideCullingAndFilling) {
    struct Mode {
        bool hideSurfaces;
        bool wireFrame;
        size_t polygons;
        int fillStyle;
    };
    const Mode modes[] = {{true, false, 3, FillSolid},
                          {true, true, 3, FillTransparent},
                          {false, false, 3, FillSolid},
                          {false, true, 6, FillTransparent}}; // pure wireframe keeps back faces
    for (const Mode& mode : modes) {
        SceneDocument document = SceneDocument::startUp();
        document.showGrid = false;
        document.solids.push_back(cubeObject(0.5f));
        ViewSpecs view = isometric();
        view.HideSurfaces = mode.hideSurfaces;
        view.wireFrame = mode.wireFrame;
        RecordingCanvas canvas(400, 300);
        ViewportRenderer renderer;
        renderer.redrawViewport(canvas, view, document.scene());
        const auto polygons = canvas.polygons();
        ASSERT_EQ(polygons.size(), mode.polygons) << mode.hideSurfaces << mode.wireFrame;
        for (const auto& polygon : polygons) {
            EXPECT_EQ(polygon.fillStyle, mode.fillStyle);
            EXPECT_EQ(polygon.drawStyle, mode.wireFrame ? DrawSolid : DrawInvisible);
        }
    }
}

TEST(ViewportRenderer, EmptyDocumentShowsGridAndBothAxesGlyphs) {
    SceneDocument document = SceneDocument::startUp();
    RecordingCanvas canvas(400, 300);
    ViewportRenderer renderer;
    renderer.redrawViewport(canvas, isometric(), document.scene());
    ASSERT_FALSE(canvas.calls().empty());
    EXPECT_EQ(canvas.calls().front().kind, Kind::Clear);
    size_t texts = 0;
    for (const auto& call : canvas.calls()) {
        if (call.kind == Kind::Polygon) {
            EXPECT_EQ(call.foreColor, 100 + 256 * 100 + 65536 * 100); // grey outlines
            EXPECT_EQ(call.fillStyle, FillTransparent);
        }
        if (call.kind == Kind::Text) {
            EXPECT_EQ(call.text, std::string(1, "XYZ"[texts % 3]));
            ++texts;
        }
    }
    EXPECT_GT(canvas.polygons().size(), 20u);
    EXPECT_EQ(texts, 6u);

    // Seen from below the grid is culled whole.
    ViewSpecs below = isometric();
    below.EyePhi = -0.3f;
    canvas.forget();
    renderer.redrawViewport(canvas, below, document.scene());
    EXPECT_TRUE(canvas.polygons().empty());
}

TEST(ViewportRenderer, ObjectsPaintFarthestFirstAndSelectionForcesColour) {
    SceneDocument document = SceneDocument::startUp();
    document.showGrid = false;
    auto near = cubeObject(0.5f, 1, 0, 2);
    auto far = cubeObject(0.5f, -1, 0, -2);
    document.solids = {near, far};
    near->setSelected(true);
    RecordingCanvas canvas(400, 300);
    ViewportRenderer renderer;
    ViewSpecs view = isometric();
    view.zoom = 50; // both cubes wholly on the canvas
    renderer.redrawViewport(canvas, view, document.scene());
    EXPECT_EQ(renderer.sortSolidsByDepth(document.solids),
              (std::vector<std::shared_ptr<Transformed3d>>{far, near}));
    const auto polygons = canvas.polygons();
    ASSERT_EQ(polygons.size(), 6u);
    // The selected (near) cube comes last, in its forced red-based colour.
    for (size_t i = 3; i < 6; ++i) {
        EXPECT_GE(polygons[i].fillColor % 256, 150) << i;
    }
    EXPECT_LT(polygons[0].fillColor % 256, 150);
}

TEST(ViewportRenderer, AWorkplaneClippedInOneViewportIsDrawnAndPickedInTheNext) {
    ScriptedPrompts prompts;
    SceneDocument document = SceneDocument::startUp();
    document.showGrid = false;
    document.showReferenceAxes = false;
    document.showZeroAxes = false;
    auto plane = std::make_shared<WorkPlane>();
    plane->initialize(24, 0, 0, 0, 255); // reaches past the side view's eye at x = 10
    document.workPlanes = {plane};
    const ViewSpecs side = standardView(KorvanOpsConsts::viewSide);
    const ViewSpecs front = standardView(KorvanOpsConsts::viewFront);
    ViewportRenderer renderer;

    RecordingCanvas frontFirst;
    renderer.redrawViewport(frontFirst, front, document.scene());
    RecordingCanvas sideCanvas;
    renderer.redrawViewport(sideCanvas, side, document.scene());
    RecordingCanvas frontAfterSide;
    renderer.redrawViewport(frontAfterSide, front, document.scene());

    // The front view draws the plane where it sees it, whatever viewport came before.
    const auto expected = frontFirst.polygons();
    const auto drawn = frontAfterSide.polygons();
    ASSERT_EQ(expected.size(), 1u);
    ASSERT_EQ(drawn.size(), 1u);
    ASSERT_EQ(drawn[0].points.size(), 4u);
    for (size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(drawn[0].points[i].x, expected[0].points[i].x) << i;
        EXPECT_EQ(drawn[0].points[i].y, expected[0].points[i].y) << i;
    }
    EXPECT_NE(plane->createRegion(), nullptr);
    EXPECT_TRUE(prompts.messages().empty());
}
