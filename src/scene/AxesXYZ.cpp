#include "scene/AxesXYZ.h"

#include "geometry/M3Ops.h"
#include "geometry/Rounding.h"
#include "platform/Canvas.h"
#include "render/CanvasStateGuard.h"

#include <array>

AxesXYZ::AxesXYZ() {
    solid_.addPointsArray(std::vector<float>{0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1});
}

void AxesXYZ::draw(Canvas& pic, float EyeR, float EyeTheta, float EyePhi, int ProjectionType,
                   bool shiftToBottomLeft, float shiftx, float shifty) {
    Matrix4 V;
    M3Ops::buildViewMatrixSpherical(V, static_cast<int16_t>(ProjectionType), EyeR, EyePhi, EyeTheta,
                                    0.0f, 0.0f, 0.0f, 0.0f, 1.0f, 0.0f);
    const auto W = static_cast<float>(pic.scaleWidth());
    const auto H = static_cast<float>(pic.scaleHeight());
    Matrix4 S;
    M3Ops::setScale(S, W / 12.0f, -H / 12.0f, 1.0f);
    Matrix4 T;
    if (shiftToBottomLeft) {
        M3Ops::setTranslation(T, W / 12.0f, H - H / 12.0f, 0.0f);
    } else {
        M3Ops::setTranslation(T, (W + shiftx) / 2.0f, (H + shifty) / 2.0f, 0.0f);
    }
    Matrix4 ST;
    M3Ops::multiplyMatrices(ST, S, T);
    Matrix4 F;
    M3Ops::multiplyMatrices(F, V, ST);

    std::array<CanvasPoint, 4> pts;
    for (int32_t i = 1; i <= 4; ++i) {
        PointRecord record = solid_.getPointRecord(i);
        M3Ops::transformPoint(record.coord, F, record.trans);
        solid_.setPointRecord(i, record);
        pts[static_cast<size_t>(i - 1)] = {Rounding::toInt32(record.trans.x),
                                           Rounding::toInt32(record.trans.y)};
    }

    const CanvasStateGuard guard(pic);
    pic.setDrawStyle(DrawSolid);
    pic.setForeColor(16777215);
    const char* const labels[] = {"X", "Y", "Z"};
    for (size_t tip = 1; tip <= 3; ++tip) {
        pic.moveTo(pts[0].x, pts[0].y);
        pic.lineTo(pts[tip].x, pts[tip].y);
        pic.textOut(pts[tip].x, pts[tip].y, labels[tip - 1]);
    }
}
