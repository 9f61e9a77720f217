#include "app/MemoryBytes.h"

#include "geometry/CPoint3D.h"
#include "scene/Profile.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"

#include <memory>

namespace {

// An object made with make_shared: the object and its control block, and the pointer that
// holds it.
template <class T> constexpr size_t shared = sizeof(T) + 16 + sizeof(std::shared_ptr<T>);

} // namespace

namespace MemoryBytes {

size_t of(const Solid3d& solid) {
    // Index 0 is unused.
    size_t bytes = shared<Solid3d> +
                   (static_cast<size_t>(solid.getPointUpperBound()) + 1) * solid.bytesPerPoint();
    for (const auto& face : solid.faces) {
        bytes += shared<Face3d> + face->getIndices().heapBytes();
    }
    return bytes;
}

size_t of(const Transformed3d& object) {
    const auto solid = object.getSolid();
    return shared<Transformed3d> +
           static_cast<size_t>(object.getCurvePointCount()) * sizeof(PointRecord) +
           static_cast<size_t>(object.getTransformationCount()) * sizeof(Matrix4) +
           (solid ? of(*solid) : 0);
}

size_t of(const WorkPlane& workPlane) {
    return shared<WorkPlane> + of(*workPlane.getSolid());
}

size_t of(const Profile& profile) {
    return shared<Profile> + static_cast<size_t>(profile.getPointCount()) * shared<CPoint3D>;
}

} // namespace MemoryBytes
