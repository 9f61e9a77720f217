#include "scene/GridSolid3D.h"

#include "geometry/Pi.h"
#include "geometry/Rounding.h"

#include <algorithm>
#include <cmath>

GridSolid3D::GridSolid3D() : solid_(std::make_shared<Solid3d>()) {}

bool GridSolid3D::initialize(float x1, float deltax, int16_t xnum, float z1, float deltaz,
                             int16_t znum) {
    solid_ = std::make_shared<Solid3d>();
    // Coordinates accumulate by repeated single-precision addition, column by column, so
    // point (i, j) is number (i - 1) znum + j.
    std::vector<float> values;
    float x = x1;
    for (int i = 1; i <= xnum; ++i) {
        float z = z1;
        for (int j = 1; j <= znum; ++j) {
            values.insert(values.end(), {x, 0.0f, z});
            z += deltaz;
        }
        x += deltax;
    }
    solid_->addPointsArray(values);

    int32_t k = 1;
    for (int i = 1; i < xnum; ++i) {
        for (int j = 1; j < znum; ++j) {
            solid_->AddFace(std::vector<int32_t>{k, k + 1, k + znum + 1, k + znum});
            ++k;
        }
        ++k; // the last point of a column starts no quad
    }
    return true;
}

bool GridSolid3D::ApplyFull(const Matrix4& M) {
    solid_->ApplyFull(M, false);
    return false;
}

void GridSolid3D::cull(float eye_x, float eye_y, float eye_z) {
    solid_->cull(eye_x, eye_y, eye_z);
}

void GridSolid3D::clipEye(float eyeR) {
    solid_->clipEye(eyeR);
}

void GridSolid3D::getRMinRMax(float light_x, float light_y, float light_z, float& Rmin,
                              float& Rmax) const {
    solid_->getRMinRMax(light_x, light_y, light_z, Rmin, Rmax);
}

void GridSolid3D::resetTransformedPoints() {
    solid_->resetTransformedPoints();
    solid_->Culled(false);
}

void GridSolid3D::draw(Canvas& pic, const LightList&, int16_t ambient_light, float eye_x,
                       float eye_y, float eye_z, bool UseShift, bool ResetAfterDraw, int FRed,
                       int FGreen, int FBlue) {
    solid_->draw(pic, LightList{}, ambient_light, eye_x, eye_y, eye_z, UseShift, ResetAfterDraw,
                 true, FRed, FGreen, FBlue, 0, 100, 0);
}

bool GridSolid3D::SetColorShift(float width, float height, float increment) {
    const int32_t cols = Rounding::toInt32(width / increment - 1.0f);
    const int32_t rows = Rounding::toInt32(height / increment - 1.0f);
    const float stepA = Pi::single / static_cast<float>(cols - 1);
    const float stepB = Pi::single / static_cast<float>(rows - 1);
    colorShift_.assign(static_cast<size_t>(std::max(rows, 0)), {});
    float b = 0;
    for (auto& row : colorShift_) {
        float a = 0;
        for (int32_t c = 0; c < cols; ++c) {
            row.push_back((std::sin(a) + std::sin(b)) * 19.0f);
            a += stepA;
        }
        b += stepB;
    }
    return true;
}
