#include "geometry/CPoint3D.h"

#include "geometry/NumberText.h"

std::string CPoint3D::toString() const {
    return "X:" + NumberText::single(record.coord.x) + ", Y:" + NumberText::single(record.coord.y) +
           ",Z:" + NumberText::single(record.coord.z);
}
