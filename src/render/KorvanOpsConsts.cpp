#include "render/KorvanOpsConsts.h"

#include "geometry/M3Ops.h"
#include "geometry/PackedColor.h"
#include "geometry/Pi.h"
#include "platform/Canvas.h"
#include "platform/Prompts.h"

namespace KorvanOpsConsts {

void setOrthoView(int viewConst, ViewSpecs& view) {
    switch (viewConst) {
    case viewTop:
        view.EyeTheta = 0;
        view.EyePhi = static_cast<float>(Pi::pi14 / 2);
        break;
    case viewFront:
        view.EyeTheta = static_cast<float>(Pi::pi14 / 2);
        view.EyePhi = 0;
        break;
    case viewSide:
        view.EyeTheta = 0;
        view.EyePhi = 0;
        break;
    case viewIsometric:
        view.EyeTheta = static_cast<float>(0.6283185307179581);
        view.EyePhi = static_cast<float>(0.15707963267948952);
        view.EyeR = 10.0f;
        break;
    default:
        showMessage("Invalid setOrthoView viewConst Parameter.  View Change not performed.",
                    "SetOrthoView Error", MessageIcon::Exclamation);
        break;
    }
}

Matrix4 getViewMatrix(const ViewSpecs& view) {
    Matrix4 M;
    M3Ops::buildViewMatrixSpherical(M, static_cast<int16_t>(view.ProjectionType), view.EyeR,
                                    view.EyePhi, view.EyeTheta, static_cast<float>(view.targetX),
                                    static_cast<float>(view.targetY),
                                    static_cast<float>(view.targetZ), 0.0f, 1.0f, 0.0f);
    return M;
}

Matrix4 getCanvasMatrix(const Canvas& pic, const ViewSpecs& view) {
    Matrix4 S;
    M3Ops::setScale(S, view.zoom, -view.zoom, 1.0f);
    Matrix4 T;
    M3Ops::setTranslation(T, (static_cast<float>(pic.scaleWidth()) + view.shiftx) / 2.0f,
                          (static_cast<float>(pic.scaleHeight()) + view.shifty) / 2.0f, 0.0f);
    Matrix4 M;
    M3Ops::multiplyMatrices(M, S, T);
    return M;
}

Matrix4 getFullViewMatrix(const Canvas& pic, const ViewSpecs& view) {
    Matrix4 M;
    M3Ops::multiplyMatrices(M, getViewMatrix(view), getCanvasMatrix(pic, view));
    return M;
}

void getEyePosition(const ViewSpecs& view, float& x, float& y, float& z) {
    M3Ops::sphericalToCartesian(view.EyeR, view.EyeTheta, view.EyePhi, x, y, z);
}

void splitColor(int32_t color, int& red, int& green, int& blue) {
    const PackedColor channels = PackedColor::split(color);
    red = channels.red;
    green = channels.green;
    blue = channels.blue;
}

int toCheckValue(bool flag) {
    return flag ? 1 : 0;
}

void unpackXYZ(const std::array<float, 3>& values, float& x, float& y, float& z) {
    x = values[0];
    y = values[1];
    z = values[2];
}

} // namespace KorvanOpsConsts
