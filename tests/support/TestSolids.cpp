#include "support/TestSolids.h"

std::shared_ptr<Solid3d> makeCube(float h, float cx, float cy, float cz) {
    auto cube = std::make_shared<Solid3d>();
    const float corners[8][3] = {{-h, -h, -h}, {h, -h, -h}, {h, h, -h}, {-h, h, -h},
                                 {-h, -h, h},  {h, -h, h},  {h, h, h},  {-h, h, h}};
    std::vector<float> points;
    for (const auto& c : corners) {
        points.insert(points.end(), {c[0] + cx, c[1] + cy, c[2] + cz});
    }
    cube->addPointsArray(points);
    cube->AddFace(std::vector<int32_t>{5, 6, 7, 8}); // +z
    cube->AddFace(std::vector<int32_t>{1, 4, 3, 2}); // -z
    cube->AddFace(std::vector<int32_t>{2, 3, 7, 6}); // +x
    cube->AddFace(std::vector<int32_t>{1, 5, 8, 4}); // -x
    cube->AddFace(std::vector<int32_t>{4, 8, 7, 3}); // +y
    cube->AddFace(std::vector<int32_t>{1, 2, 6, 5}); // -y
    return cube;
}

std::shared_ptr<Transformed3d> makeObject(std::shared_ptr<Solid3d> solid) {
    auto object = std::make_shared<Transformed3d>();
    object->setSolid(std::move(solid));
    return object;
}

std::shared_ptr<WorkPlane> makeWorkPlane(float size, float xRotation, float yRotation, float offset,
                                         int32_t color) {
    auto workPlane = std::make_shared<WorkPlane>();
    workPlane->initialize(size, xRotation, yRotation, offset, color);
    return workPlane;
}

std::shared_ptr<Profile> makeProfile(const std::vector<Point4>& corners, bool closed) {
    auto profile = std::make_shared<Profile>();
    for (const Point4& corner : corners) {
        profile->addPointRecord({corner, {}, {}});
    }
    if (closed) {
        profile->addCPoint(profile->getCPoint(1));
    }
    return profile;
}

std::shared_ptr<Profile> makeDiamondProfile() {
    return makeProfile({{0, 0, 0, 1}, {1, 1, 0, 1}, {0, 2, 0, 1}, {-1, 1, 0, 1}}, true);
}

Matrix4 canvasLayout(float scale, float dx, float dy) {
    Matrix4 M;
    M3Ops::setScale(M, scale, scale, 1.0f);
    M(4, 1) = dx;
    M(4, 2) = dy;
    return M;
}
