#include "app/SceneDocument.h"
#include "qt/QtCanvas.h"
#include "render/KorvanOpsConsts.h"
#include "render/ViewportRenderer.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"
#include "support/RecordingCanvas.h"
#include "support/TestSolids.h"

#include <gtest/gtest.h>

namespace {

// A shaded box standing on the grid at (x, z).
std::shared_ptr<Transformed3d> box(float x, float y, float z, float half) {
    auto solid = makeCube(half, x, y + half, z);
    solid->SetDiffuseCoefficients(0.9f, 0.6f, 0.3f);
    solid->SetAmbientCoefficients(0.5f, 0.5f, 0.5f);
    solid->SetSpecularCoefficients(0.5f, 5);
    return makeObject(solid);
}

SceneDocument smallScene() {
    SceneDocument document = SceneDocument::startUp();
    document.solids = {box(0.8f, 0, -0.3f, 0.25f), box(-0.2f, 0, -0.9f, 0.2f),
                       box(-0.9f, 0, 0.5f, 0.3f)};
    document.workPlanes.push_back(makeWorkPlane(0.8f, 0, 0, 1.2f, 255 * 256)); // green, at z = 1.2
    return document;
}

ViewSpecs isometric() {
    ViewSpecs view;
    KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewIsometric, view);
    return view;
}

QRgb rgbOf(int32_t color) {
    return qRgb(color % 256, (color / 256) % 256, color / 65536);
}

} // namespace

TEST(SceneImage, IsometricViewShowsTheComputedShadesAndNothingBehindTheEye) {
    const int width = 800, height = 600;
    SceneDocument document = smallScene();
    ViewportRenderer renderer;
    RecordingCanvas recorded(width, height);
    renderer.redrawViewport(recorded, isometric(), document.scene());
    QtCanvas canvas(width, height);
    renderer.redrawViewport(canvas, isometric(), document.scene());
    const QImage& image = canvas.image();

    // The sky above the scene is the cleared background.
    EXPECT_EQ(image.pixel(width - 5, 5), rgbOf(0));

    // Every solid face painted after the grid shows its computed shade at its centre, unless
    // a later face, the workplane or an axes glyph covers that spot: the last one is never
    // covered by another solid face.
    std::vector<RecordingCanvas::Call> solidFaces;
    for (const auto& call : recorded.polygons()) {
        if (call.fillStyle == FillSolid && call.drawStyle == DrawInvisible) {
            solidFaces.push_back(call);
        }
    }
    ASSERT_GE(solidFaces.size(), 9u); // three boxes, three faces each in view
    const auto& last = solidFaces.back();
    int x = 0, y = 0;
    for (const auto& p : last.points) {
        x += p.x;
        y += p.y;
    }
    const int n = static_cast<int>(last.points.size());
    EXPECT_EQ(image.pixel(x / n, y / n), rgbOf(last.fillColor));
    EXPECT_NE(last.fillColor, 0);

    // Nothing behind the eye is drawn.
    float ex, ey, ez;
    KorvanOpsConsts::getEyePosition(isometric(), ex, ey, ez);
    document.solids.push_back(box(ex * 1.5f, ey * 1.5f, ez * 1.5f, 1));
    QtCanvas withHidden(width, height);
    renderer.redrawViewport(withHidden, isometric(), document.scene());
    EXPECT_EQ(withHidden.image(), image);
}
