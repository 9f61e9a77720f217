#include "app/SceneDocument.h"
#include "geometry/M3Ops.h"
#include "qt/QtCanvas.h"
#include "render/KorvanOpsConsts.h"
#include "render/ViewportRenderer.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"
#include "support/QPainterCanvas.h"
#include "support/RecordingCanvas.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

// A square prism standing on the grid at (x, z): the curve is listed so that the sweep's
// faces point outwards.
std::shared_ptr<Transformed3d> prism(float x, float y, float z, float half, float height) {
    auto object = std::make_shared<Transformed3d>();
    const float corners[5][2] = {
        {-half, half}, {half, half}, {half, -half}, {-half, -half}, {-half, half}};
    for (const auto& c : corners) {
        object->AddCurvePoint(x + c[0], y, z + c[1]);
    }
    Matrix4 up;
    M3Ops::setTranslation(up, 0, height, 0);
    object->SetTransformation(up);
    object->Transform(true);
    object->SetDiffuseCoefficients(0.9f, 0.6f, 0.3f);
    object->SetAmbientCoefficients(0.5f, 0.5f, 0.5f);
    object->setSpecularK(0.5f);
    object->setSpecularN(5);
    return object;
}

SceneDocument smallScene() {
    SceneDocument document = SceneDocument::startUp();
    document.solids = {prism(0.8f, 0, -0.3f, 0.25f, 0.8f), prism(-0.2f, 0, -0.9f, 0.2f, 0.5f),
                       prism(-0.9f, 0, 0.5f, 0.3f, 0.4f)};
    auto workPlane = std::make_shared<WorkPlane>();
    workPlane->initialize(0.8f, 0, 0, 1.2f, 255 * 256); // green, upright at z = 1.2
    document.workPlanes.push_back(workPlane);
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

CanvasPoint centre(const std::vector<CanvasPoint>& points) {
    int64_t x = 0;
    int64_t y = 0;
    for (const auto& p : points) {
        x += p.x;
        y += p.y;
    }
    const auto n = static_cast<int64_t>(points.size());
    return {static_cast<int32_t>(x / n), static_cast<int32_t>(y / n)};
}

} // namespace

TEST(SceneImage, IsometricViewOfPrismsGridAxesAndWorkplane) {
    const int width = 800;
    const int height = 600;
    SceneDocument document = smallScene();
    ViewportRenderer renderer;
    RecordingCanvas recorded(width, height);
    renderer.redrawViewport(recorded, isometric(), document.scene());
    QtCanvas canvas(width, height);
    renderer.redrawViewport(canvas, isometric(), document.scene());
    const QImage& image = canvas.image();

    // Kept for a person to look at: build/default/tests/artifacts/scene-isometric.png.
    QDir().mkpath("artifacts");
    EXPECT_TRUE(canvas.saveImage("artifacts/scene-isometric.png"));

    // The sky above the scene is the cleared background.
    EXPECT_EQ(image.pixel(width - 5, 5), rgbOf(0));

    // Every solid face painted after the grid shows its computed shade at its centre, unless
    // a later face, the workplane or an axes glyph covers that spot: the last one is never
    // covered by another solid face.
    const auto polygons = recorded.polygons();
    std::vector<RecordingCanvas::Call> solidFaces;
    for (const auto& call : polygons) {
        if (call.fillStyle == FillSolid && call.drawStyle == DrawInvisible) {
            solidFaces.push_back(call);
        }
    }
    ASSERT_GE(solidFaces.size(), 9u); // three prisms, three faces each in view
    const auto& last = solidFaces.back();
    const CanvasPoint c = centre(last.points);
    EXPECT_EQ(image.pixel(c.x, c.y), rgbOf(last.fillColor));
    EXPECT_NE(last.fillColor, 0);

    // The workplane is hatched: inside its square some pixels carry its colour, others not.
    const auto& plane = polygons.back();
    ASSERT_EQ(plane.fillStyle, FillDiagonalCross);
    const CanvasPoint p = centre(plane.points);
    int hatch = 0;
    int gaps = 0;
    for (int dy = -6; dy <= 6; ++dy) {
        for (int dx = -6; dx <= 6; ++dx) {
            (image.pixel(p.x + dx, p.y + dy) == rgbOf(255 * 256) ? hatch : gaps)++;
        }
    }
    EXPECT_GT(hatch, 10);
    EXPECT_GT(gaps, 10);
}

TEST(SceneImage, NothingBehindTheEyeIsDrawn) {
    SceneDocument plain = smallScene();
    SceneDocument withHidden = smallScene();
    float ex;
    float ey;
    float ez;
    KorvanOpsConsts::getEyePosition(isometric(), ex, ey, ez);
    withHidden.solids.push_back(prism(ex * 1.5f, ey * 1.5f, ez * 1.5f, 1, 1));

    ViewportRenderer renderer;
    QtCanvas a(400, 300);
    QtCanvas b(400, 300);
    renderer.redrawViewport(a, isometric(), plain.scene());
    renderer.redrawViewport(b, isometric(), withHidden.scene());
    EXPECT_EQ(a.image(), b.image());
}

TEST(SceneImage, OurSolidFillPaintsTheScenesAsQPainterDoes) {
    SceneDocument document = smallScene();
    ViewportRenderer renderer;
    for (const int32_t viewConstant :
         {KorvanOpsConsts::viewTop, KorvanOpsConsts::viewSide, KorvanOpsConsts::viewFront,
          KorvanOpsConsts::viewIsometric}) {
        ViewSpecs view;
        KorvanOpsConsts::setOrthoView(viewConstant, view);
        QtCanvas ours(800, 600);
        QPainterCanvas reference(800, 600);
        renderer.redrawViewport(ours, view, document.scene());
        renderer.redrawViewport(reference, view, document.scene());
        // Faces meet at shared edges; a few pixels there may go to the other face.
        EXPECT_LE(edgeDifferences(ours.image(), reference), 10) << viewConstant;
    }
}
