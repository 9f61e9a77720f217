#include "scene/Profile.h"

#include "geometry/CPoint3D.h"
#include "geometry/M3Ops.h"
#include "geometry/PackedColor.h"
#include "geometry/Rounding.h"
#include "platform/Canvas.h"
#include "render/CanvasStateGuard.h"
#include "render/GDIRegion.h"

void Profile::addCPoint(const std::shared_ptr<CPoint3D>& point) {
    points.push_back(point);
}

void Profile::ApplyFull(const Matrix4& M) {
    if (!visible) {
        return;
    }
    for (const auto& point : points) {
        PointRecord record = point->getRecord();
        M3Ops::transformPoint(record.coord, M, record.trans);
        point->setRecord(record);
    }
}

void Profile::draw(Canvas& pic, int profileRed, int profileGreen, int profileBlue) const {
    if (!visible) {
        return;
    }
    const CanvasStateGuard guard(pic);
    pic.setFillStyle(FillTransparent);
    pic.setDrawStyle(DrawSolid);
    // The selection colour, magenta, is added channel by channel.
    pic.setForeColor(selected ? PackedColor::pack(profileRed + 255, profileGreen, profileBlue + 255)
                              : PackedColor::pack(profileRed, profileGreen, profileBlue));

    for (size_t i = 0; i < points.size(); ++i) {
        const Point4 p = points[i]->getRecord().trans;
        const int32_t x = Rounding::toInt32(p.x);
        const int32_t y = Rounding::toInt32(p.y);
        if (i == 0) {
            pic.moveTo(x, y);
        } else {
            pic.lineTo(x, y);
        }
    }
}

std::shared_ptr<CPoint3D> Profile::getCPoint(int32_t index) const {
    // count > 1, not >= 1: a profile of one point reports nothing, even at index 1.
    if (getPointCount() > 1 && index >= 1 && index <= getPointCount()) {
        return points[static_cast<size_t>(index - 1)];
    }
    return nullptr;
}

void Profile::changeOrientation() {
    std::reverse(points.begin(), points.end());
}

std::shared_ptr<Profile> Profile::clone() const {
    auto copy = std::make_shared<Profile>();
    for (const auto& point : points) {
        copy->addCPoint(point);
    }
    copy->setSelected(selected);
    copy->setVisible(visible);
    return copy;
}

std::shared_ptr<GDIRegion> Profile::createRegion(const Matrix4& M) const {
    std::vector<CanvasPoint> vertices;
    for (const auto& point : points) {
        Point4 projected;
        M3Ops::transformPoint(point->getRecord().coord, M, projected);
        vertices.push_back({Rounding::toInt32(projected.x), Rounding::toInt32(projected.y)});
    }
    auto region = std::make_shared<GDIRegion>();
    region->createPolygonRegion(vertices, GDIRegion::WindingFill);
    return region;
}

void Profile::addPointRecord(const PointRecord& record) {
    auto point = std::make_shared<CPoint3D>();
    point->setRecord(record);
    points.push_back(point);
}

PointRecord Profile::getPointRecord(int32_t index) const {
    const auto point = getCPoint(index);
    return point ? point->getRecord() : PointRecord{};
}
