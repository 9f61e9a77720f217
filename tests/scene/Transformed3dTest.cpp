#include "scene/Transformed3d.h"

#include "geometry/M3Ops.h"

#include <gtest/gtest.h>

namespace {

Matrix4 translation(float tx, float ty, float tz) {
    Matrix4 M;
    M3Ops::setTranslation(M, tx, ty, tz);
    return M;
}

} // namespace

TEST(Transformed3d, SweptAlongTheCurvesNormalEveryFaceTurnsOutwards) {
    // Swept the way extrusion sweeps, along (P2 - P1) x (Pn-1 - P1) of the curve, every side
    // triangle and both caps must list their corners so that their normals leave the solid:
    // that is what back-face culling keeps or drops. Both orientations of the curve.
    struct Case {
        float corners[5][2];
        float normalZ; // the curve's normal, along z
    };
    const Case cases[] = {{{{0, 0}, {0, 1}, {1, 1}, {1, 0}, {0, 0}}, -1},
                          {{{0, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}}, 1}};
    for (const Case& c : cases) {
        Transformed3d prism;
        for (const auto& corner : c.corners) {
            prism.AddCurvePoint(corner[0], corner[1], 0);
        }
        prism.SetTransformation(translation(0, 0, c.normalZ / 2));
        prism.SetTransformation(translation(0, 0, c.normalZ));
        prism.Transform(true);
        const auto solid = prism.getSolid();
        ASSERT_EQ(solid->GetFaceNum(), 18);
        const float centre[3] = {0.5f, 0.5f, c.normalZ / 2};
        for (int32_t f = 0; f < solid->GetFaceNum(); ++f) {
            const Face3d& face = *solid->faces[static_cast<size_t>(f)];
            float outwards = 0;
            float n[3];
            face.NormalVector(n[0], n[1], n[2]);
            for (int axis = 0; axis < 3; ++axis) {
                float mean = 0;
                for (const int32_t index : face.getIndices()) {
                    mean += solid->getPointRecord(index).coord(axis + 1);
                }
                mean /= static_cast<float>(face.NumPts);
                outwards += n[axis] * (mean - centre[axis]);
            }
            EXPECT_GT(outwards, 0) << "face " << f + 1 << ", normal z " << c.normalZ;
        }
    }
}
