#include "app/SceneDocument.h"
#include "app/ViewportSet.h"
#include "qt/QtCanvas.h"
#include "render/KorvanOpsConsts.h"
#include "scene/WorkPlane.h"
#include "support/LiteralRedraw.h"
#include "support/TestSolids.h"

#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace {

// A twisted prism (sorted faces that overlap), a convex cube, a workplane and a profile.
SceneDocument makeScene() {
    SceneDocument document = SceneDocument::startUp();
    auto twisted = std::make_shared<Transformed3d>();
    for (int k = 0; k <= 6; ++k) {
        const double t = 6.2831853 * k / 6;
        twisted->AddCurvePoint(static_cast<float>(std::cos(t)), 0,
                               static_cast<float>(-std::sin(t)));
    }
    Matrix4 step;
    Matrix4 turn;
    Matrix4 up;
    M3Ops::setRotationY(turn, 0.3f);
    M3Ops::setTranslation(up, 0, 0.4f, 0);
    M3Ops::multiplyAffine(step, turn, up);
    Matrix4 running;
    M3Ops::setIdentity(running);
    for (int r = 0; r < 6; ++r) {
        M3Ops::multiplyAffine(running, running, step);
        twisted->SetTransformation(running);
    }
    twisted->Transform(true);
    twisted->SetDiffuseCoefficients(0.6f, 0.5f, 0.4f);
    twisted->setSpecularK(0.3f);
    twisted->setSpecularN(8);
    document.solids.push_back(twisted);
    auto cube = makeObject(makeCube(0.5f, 2, 0.5f, 1));
    cube->IsConvex(true);
    cube->SetDiffuseCoefficients(0.2f, 0.7f, 0.3f);
    document.solids.push_back(cube);
    document.workPlanes.push_back(makeWorkPlane(3, 0.4f, 0.2f));
    document.profiles.push_back(makeDiamondProfile());
    return document;
}

bool sameBytes(const void* a, const void* b, size_t size) {
    return std::memcmp(a, b, size) == 0;
}

bool sameRecord(const PointRecord& a, const PointRecord& b) {
    return sameBytes(&a, &b, sizeof(PointRecord));
}

// What a redraw leaves in the document: projections, culling, depths, lights, flags.
void expectSameState(const SceneDocument& ours, const SceneDocument& literal, int step) {
    for (size_t k = 0; k < ours.solids.size(); ++k) {
        const Solid3d& a = *ours.solids[k]->getSolid();
        const Solid3d& b = *literal.solids[k]->getSolid();
        for (int32_t i = 1; i <= a.getPointUpperBound(); ++i) {
            EXPECT_TRUE(sameRecord(a.getPointRecord(i), b.getPointRecord(i)))
                << "step " << step << ", solid " << k << ", point " << i;
            EXPECT_EQ(a.hasTransformedPoint(i), b.hasTransformedPoint(i))
                << "step " << step << ", solid " << k << ", point " << i;
        }
        for (size_t f = 0; f < a.faces.size(); ++f) {
            EXPECT_EQ(a.faces[f]->IsCulled, b.faces[f]->IsCulled)
                << "step " << step << ", solid " << k << ", face " << f;
        }
        EXPECT_TRUE(sameBytes(&a.zmax, &b.zmax, sizeof(float))) << "step " << step;
        EXPECT_EQ(a.HideSurfaces, b.HideSurfaces) << "step " << step;
        const auto& curveA = *ours.solids[k];
        for (int i = 1; i <= curveA.getCurvePointCount(); ++i) {
            EXPECT_TRUE(sameBytes(&curveA.getCurvePoint(i), &literal.solids[k]->getCurvePoint(i),
                                  sizeof(PointRecord)))
                << "step " << step << ", curve point " << i;
        }
    }
    for (size_t l = 0; l < ours.light_sources.size(); ++l) {
        EXPECT_TRUE(sameBytes(ours.light_sources[l].get(), literal.light_sources[l].get(),
                              sizeof(LightSource)))
            << "step " << step << ", light " << l;
    }
    const Solid3d& planeA = *ours.workPlanes[0]->getSolid();
    const Solid3d& planeB = *literal.workPlanes[0]->getSolid();
    for (int32_t i = 1; i <= planeA.getPointUpperBound(); ++i) {
        EXPECT_TRUE(sameRecord(planeA.getPointRecord(i), planeB.getPointRecord(i)))
            << "step " << step << ", workplane point " << i;
    }
}

} // namespace

TEST(ViewportPictures, KeptAndParallelPicturesMatchTheLiteralRedrawOverRandomSessions) {
    // Views turned, zoomed and switched, resizes, both layouts, selections and recolourings,
    // redraws that say the document changed and ones that vouch it did not, and the
    // depth-buffered option (its pictures differ; what it leaves in the document may not).
    SceneDocument ours = makeScene();
    SceneDocument literal = makeScene();
    std::array<QtCanvas, 4> canvases{QtCanvas(1, 1), QtCanvas(1, 1), QtCanvas(1, 1),
                                     QtCanvas(1, 1)};
    std::array<QtCanvas, 4> literalCanvases{QtCanvas(1, 1), QtCanvas(1, 1), QtCanvas(1, 1),
                                            QtCanvas(1, 1)};
    ViewportSet viewports;
    viewports.attachCanvases({&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
    viewports.viewportLayout = 4;
    viewports.setClientSize(300, 200);
    viewports.layoutViewports();
    std::mt19937 random(11);
    int overlayX = 0;
    const auto overlay = [&overlayX](Canvas& canvas, const ViewSpecs&) {
        canvas.moveTo(overlayX, 0);
        canvas.lineTo(overlayX, 20);
    };
    // The viewports one after the other, every one painted, as every redraw once did.
    const auto literalRedraw = [&](bool compare, int step) {
        for (size_t i = 0; i < 4; ++i) {
            QtCanvas& canvas = literalCanvases[i];
            const ViewSpecs& record = viewports.viewSpecs(static_cast<int>(i) + 1);
            canvas.setVisible(canvases[i].isVisible());
            canvas.resize(canvases[i].scaleWidth(), canvases[i].scaleHeight());
            if (!canvas.isVisible()) {
                LiteralRedraw::project(canvas, record, literal.scene());
                continue;
            }
            LiteralRedraw::redrawViewport(canvas, record, literal.scene());
            overlay(canvas, record);
            canvas.refresh();
            if (compare && !viewports.depthBufferedAtRest) {
                EXPECT_EQ(canvases[i].image(), canvas.image())
                    << "step " << step << ", viewport " << i;
            }
        }
    };
    for (int step = 0; step < 300; ++step) {
        bool changed = step == 0;
        const int number = static_cast<int>(random() % 4) + 1;
        switch (random() % 10) {
        case 0:
            viewports.viewSpecs(number).EyeTheta += 0.3f;
            break;
        case 1:
            viewports.viewSpecs(number).EyePhi -= 0.25f;
            viewports.viewSpecs(number).zoom *= 1.2f;
            break;
        case 2:
            viewports.viewSpecs(number).HideSurfaces = !viewports.viewSpecs(number).HideSurfaces;
            break;
        case 3:
            viewports.viewSpecs(number).wireFrame = !viewports.viewSpecs(number).wireFrame;
            break;
        case 4:
            viewports.viewportLayout = viewports.viewportLayout == 4 ? 1 : 4;
            viewports.setClientSize(200 + static_cast<int>(random() % 200), 150);
            viewports.layoutViewports();
            break;
        case 5: {
            const size_t k = random() % 2;
            const size_t face = random();
            for (SceneDocument* document : {&ours, &literal}) {
                const auto& faces = document->solids[k]->getSolid()->faces;
                faces[face % faces.size()]->setSelected(true);
                document->solids[k]->setSelected(step % 2 == 0);
            }
            changed = true;
            break;
        }
        case 6:
            for (SceneDocument* document : {&ours, &literal}) {
                document->solids[0]->SetDiffuseCoefficients(0.1f * static_cast<float>(step % 9),
                                                            0.5f, 0.5f);
            }
            changed = true;
            break;
        case 7:
            viewports.depthBufferedAtRest = !viewports.depthBufferedAtRest;
            break;
        case 8:
            // A drag: its steps draw that viewport alone; the release settles the rest.
            viewports.draggedViewport = number - 1;
            for (int move = 0; move < 3; ++move) {
                viewports.viewSpecs(number).EyeTheta -= 0.2f;
                viewports.redrawAll(ours.scene(), overlay, false);
                literalRedraw(false, step);
            }
            viewports.draggedViewport = -1;
            break;
        default:
            viewports.viewSpecs(number).anchorX += 5; // the mouse moved; nothing else did
            break;
        }
        overlayX = static_cast<int>(random() % 50);
        viewports.redrawAll(ours.scene(), overlay, changed);
        literalRedraw(true, step);
        expectSameState(ours, literal, step);
        if (HasFailure()) {
            return;
        }
    }
}

TEST(ViewportPictures, DepthBufferedPicturesAgreeWithTheExactOnesAndOnOneOrBothCores) {
    // A viewport alone is painted on both cores, two at once one each: the same picture, and
    // here, where no face hides another in part, the painter's order's. A selected cube, and
    // two squares in one solid, the second higher and to the right: the second core's faces
    // reach where the first's do not.
    SceneDocument document = SceneDocument::startUp();
    document.solids.push_back(makeObject(makeCube(0.04f, -0.1f, -0.12f, 0)));
    document.solids[0]->setSelected(true);
    auto apart = std::make_shared<Solid3d>();
    const std::vector<float> corners = {
        -0.12f, 0,    -0.04f, -0.12f, 0,    0.04f, -0.04f, 0,    0.04f, -0.04f, 0,    -0.04f,
        0.04f,  0.1f, -0.04f, 0.04f,  0.1f, 0.04f, 0.12f,  0.1f, 0.04f, 0.12f,  0.1f, -0.04f};
    apart->addPointsArray(corners);
    apart->AddFace(std::vector<int32_t>{1, 2, 3, 4});
    apart->AddFace(std::vector<int32_t>{5, 6, 7, 8});
    document.solids.push_back(makeObject(apart));
    document.solids[1]->SetDiffuseCoefficients(0.6f, 0.5f, 0.4f);
    ViewSpecs record;
    KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewIsometric, record);
    ViewportRenderer renderer;
    QtCanvas exact(240, 180);
    QtCanvas alone(240, 180);
    QtCanvas first(240, 180);
    QtCanvas second(240, 180);
    renderer.redrawViewport(exact, record, document.scene());
    renderer.redraw({{&alone, &record, ViewportPaint::Depth}}, document.scene());
    renderer.redraw(
        {{&first, &record, ViewportPaint::Depth}, {&second, &record, ViewportPaint::Depth}},
        document.scene());
    EXPECT_EQ(alone.image(), first.image());
    int differences = 0;
    for (int y = 0; y < 180; ++y) {
        for (int x = 0; x < 240; ++x) {
            differences += exact.image().pixel(x, y) != alone.image().pixel(x, y);
        }
    }
    EXPECT_EQ(differences, 0);
}
