#pragma once

#include "app/SceneDocument.h"
#include "geometry/M3Ops.h"
#include "scene/Transformed3d.h"

#include <cmath>
#include <memory>

// Scenes built the way the extrusion builds them: a closed curve in the x-z plane, listed
// so that the sweep's faces point outwards, swept upwards through running products of the
// per-step matrices.
namespace BenchScenes {

inline std::shared_ptr<Transformed3d> sweep(const std::vector<std::array<float, 2>>& corners,
                                            float cx, float cz, const std::vector<Matrix4>& step,
                                            int repeats) {
    auto object = std::make_shared<Transformed3d>();
    for (size_t i = 0; i <= corners.size(); ++i) {
        const auto& c = corners[i % corners.size()];
        object->AddCurvePoint(cx + c[0], 0, cz + c[1]);
    }
    Matrix4 running;
    M3Ops::setIdentity(running);
    for (int r = 0; r < repeats; ++r) {
        for (const Matrix4& M : step) {
            M3Ops::multiplyAffine(running, running, M);
            object->SetTransformation(running);
        }
    }
    object->Transform(true);
    object->SetDiffuseCoefficients(0.5f, 0.5f, 0.5f);
    object->SetAmbientCoefficients(0.5f, 0.5f, 0.5f);
    object->setSpecularK(0.5f);
    object->setSpecularN(50);
    return object;
}

// n corners on a circle, in the orientation that makes the sweep's faces point outwards.
inline std::vector<std::array<float, 2>> polygon(int n, float radius) {
    std::vector<std::array<float, 2>> corners;
    for (int k = 0; k < n; ++k) {
        const double t = 6.28318530717958 * k / n + 0.7853981633974483;
        corners.push_back(
            {static_cast<float>(radius * std::cos(t)), static_cast<float>(-radius * std::sin(t))});
    }
    return corners;
}

// 20 square prisms of different heights on a 5 x 4 layout around the origin.
inline SceneDocument twentyPrisms() {
    SceneDocument document = SceneDocument::startUp();
    for (int i = 0; i < 20; ++i) {
        Matrix4 up;
        M3Ops::setTranslation(up, 0, 0.5f + 0.1f * static_cast<float>(i % 7), 0);
        document.solids.push_back(sweep(polygon(4, 0.4f), -3.0f + 1.5f * static_cast<float>(i % 5),
                                        -2.25f + 1.5f * static_cast<float>(i / 5), {up}, 1));
    }
    return document;
}

// One 64-corner star extruded 2 units up in 100 subdivisions, each step moving up and
// turning about the y axis: 400 rings, about 51,000 triangles (512 per subdivision). Other
// counts of subdivisions split the same height and turn more or less finely.
inline SceneDocument twistedExtrusion(int subdivisions = 100) {
    SceneDocument document = SceneDocument::startUp();
    Matrix4 up, rx, ry, rz;
    const float step = 1.0f / static_cast<float>(subdivisions);
    M3Ops::setTranslation(up, 0, 2 * step, 0);
    M3Ops::setRotationX(rx, 0);
    M3Ops::setRotationY(ry, step);
    M3Ops::setRotationZ(rz, 0);
    auto star = polygon(64, 1.0f);
    for (size_t k = 1; k < star.size(); k += 2) {
        star[k] = {star[k][0] * 0.6f, star[k][1] * 0.6f};
    }
    document.solids.push_back(sweep(star, 0, 0, {up, rx, ry, rz}, subdivisions));
    return document;
}

} // namespace BenchScenes
