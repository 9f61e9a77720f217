#include "render/ViewportRenderer.h"

#include "app/SceneDocument.h"
#include "render/KorvanOpsConsts.h"
#include "scene/Transformed3d.h"
#include "support/RecordingCanvas.h"
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

// A start-up document with only the given solids and workplanes, switches as given.
struct Scene {
    SceneDocument document = SceneDocument::startUp();
    ViewportRenderer renderer;

    Scene(bool grid, bool axes) {
        document.showGrid = grid;
        document.showReferenceAxes = axes;
        document.showZeroAxes = axes;
    }
    RecordingCanvas draw(const ViewSpecs& view) {
        RecordingCanvas canvas(400, 300);
        renderer.redrawViewport(canvas, view, document.scene());
        return canvas;
    }
};

} // namespace

TEST(ViewportRenderer, DisplayModesDecideCullingAndFilling) {
    // Hide surfaces, wireframe, polygons painted (pure wireframe keeps back faces), fill.
    const std::tuple<bool, bool, size_t, int> modes[] = {{true, false, 3, FillSolid},
                                                         {true, true, 3, FillTransparent},
                                                         {false, false, 3, FillSolid},
                                                         {false, true, 6, FillTransparent}};
    for (const auto& [hideSurfaces, wireFrame, count, fillStyle] : modes) {
        Scene scene(false, true);
        scene.document.solids.push_back(cubeObject(0.5f));
        ViewSpecs view = standardView(KorvanOpsConsts::viewIsometric);
        view.HideSurfaces = hideSurfaces;
        view.wireFrame = wireFrame;
        const auto polygons = scene.draw(view).polygons();
        ASSERT_EQ(polygons.size(), count) << hideSurfaces << wireFrame;
        EXPECT_EQ(polygons[0].fillStyle, fillStyle);
        EXPECT_EQ(polygons[0].drawStyle, wireFrame ? DrawSolid : DrawInvisible);
    }
}

TEST(ViewportRenderer, EmptyDocumentShowsGreyGridAndBothAxesGlyphsAndNoGridFromBelow) {
    Scene scene(true, true);
    ViewSpecs view = standardView(KorvanOpsConsts::viewIsometric);
    const RecordingCanvas canvas = scene.draw(view);
    EXPECT_EQ(canvas.calls().front().kind, Kind::Clear);
    std::string texts;
    for (const auto& call : canvas.calls()) {
        texts += call.kind == Kind::Text ? call.text : "";
    }
    EXPECT_EQ(texts, "XYZXYZ");
    ASSERT_GT(canvas.polygons().size(), 20u);
    EXPECT_EQ(canvas.polygons()[0].foreColor, 100 + 256 * 100 + 65536 * 100);
    EXPECT_EQ(canvas.polygons()[0].fillStyle, FillTransparent);
    view.EyePhi = -0.3f;
    EXPECT_TRUE(scene.draw(view).polygons().empty());
}

TEST(ViewportRenderer, ObjectsPaintFarthestFirstAndSelectionForcesColour) {
    Scene scene(false, true);
    auto near = cubeObject(0.5f, 1, 0, 2);
    auto far = cubeObject(0.5f, -1, 0, -2);
    scene.document.solids = {near, far};
    near->setSelected(true);
    ViewSpecs view = standardView(KorvanOpsConsts::viewIsometric);
    view.zoom = 50; // both cubes wholly on the canvas
    const auto polygons = scene.draw(view).polygons();
    ASSERT_EQ(polygons.size(), 6u);
    // The selected (near) cube comes last, in its forced red-based colour.
    for (size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(polygons[i].fillColor % 256 >= 150, i >= 3) << i;
    }
}
