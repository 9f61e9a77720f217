#include "scene/Vector3DDrawer.h"

#include "geometry/M3Ops.h"
#include "geometry/Rounding.h"
#include "geometry/Vector3D.h"
#include "platform/Canvas.h"
#include "render/CanvasStateGuard.h"
#include "render/KorvanOpsConsts.h"
#include "render/viewInfo.h"

void Vector3DDrawer::draw(Canvas& pic, const Vector3D* v, const viewInfo& view, float shiftx,
                          float shifty, float shiftZ, int32_t vColor, int lineStyle) const {
    if (v == nullptr) {
        return;
    }
    const ViewSpecs specs = view.getSpecs();
    const Matrix4 M = KorvanOpsConsts::getFullViewMatrix(pic, specs);
    float vx;
    float vy;
    float vz;
    v->getXYZ(vx, vy, vz);
    Point4 p0;
    Point4 p1;
    M3Ops::transformPoint(Point4{shiftx, shifty, shiftZ, 1.0f}, M, p0);
    M3Ops::transformPoint(Point4{shiftx + vx, shifty + vy, shiftZ + vz, 1.0f}, M, p1);
    if (!(p0.z < specs.EyeR && p1.z < specs.EyeR)) {
        return;
    }

    const CanvasStateGuard guard(pic);
    pic.setForeColor(vColor);
    pic.setDrawStyle(lineStyle);
    pic.setFillStyle(FillTransparent);
    pic.moveTo(Rounding::toInt32(p0.x), Rounding::toInt32(p0.y));
    pic.lineTo(Rounding::toInt32(p1.x), Rounding::toInt32(p1.y));
    const auto corner = [](float c, float offset) { return Rounding::toInt32(c + offset); };
    pic.polygon({{corner(p0.x, -5.0f), corner(p0.y, -5.0f)},
                 {corner(p0.x, 5.0f), corner(p0.y, -5.0f)},
                 {corner(p0.x, 5.0f), corner(p0.y, 5.0f)},
                 {corner(p0.x, -5.0f), corner(p0.y, 5.0f)}});
}
