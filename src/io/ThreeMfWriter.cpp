#include "io/ThreeMfWriter.h"

#include "io/ColorChannel.h"
#include "io/MeshPoints.h"
#include "scene/Face3d.h"

#include <Model/COM/NMR_DLLInterfaces.h>
#include <algorithm>
#include <limits>
#include <memory>
#include <new>

namespace {

using Handle = NMR::PLib3MFBase*;

struct Release {
    void operator()(Handle handle) const { NMR::lib3mf_release(handle); }
};
using Owned = std::unique_ptr<NMR::PLib3MFBase, Release>;

// lib3mf reports every failure as a result other than LIB3MF_OK.
struct Refused {};

void check(LIB3MFRESULT result) {
    if (result != LIB3MF_OK) {
        throw Refused{};
    }
}

// Made by one of lib3mf's creating calls, released with the object that owns it.
template <class Create> Owned made(Create create) {
    Handle handle = nullptr;
    check(create(&handle));
    return Owned(handle);
}

// The package as lib3mf writes it, in memory, so that the file is then written as every other
// (the library's own buffer writer fails to size the package in this version). The zip
// writer goes back to fill in sizes, hence the seek.
struct Package {
    std::vector<uint8_t> bytes;
    size_t position = 0;

    // 0 for success, as lib3mf expects of its callbacks.
    static uint32_t write(const uint8_t* data, uint32_t count, void* user) {
        Package& package = *static_cast<Package*>(user);
        try {
            const size_t end = package.position + count;
            if (package.bytes.size() < end) {
                package.bytes.resize(end);
            }
            std::copy(data, data + count,
                      package.bytes.begin() + static_cast<std::ptrdiff_t>(package.position));
            package.position = end;
            return 0;
        } catch (const std::bad_alloc&) {
            return 1;
        }
    }
    static uint32_t seek(uint64_t position, void* user) {
        static_cast<Package*>(user)->position = position;
        return 0;
    }
};

struct Triangles {
    std::vector<NMR::MODELMESHTRIANGLE> corners;
    std::vector<NMR::MODELMESHCOLOR_SRGB> colors;
};

Triangles trianglesOf(const Transformed3d& object) {
    const auto points = static_cast<uint32_t>(MeshPoints::count(object));
    Triangles triangles;
    for (const auto& face : object.getFaces()) {
        const NMR::MODELMESHCOLOR_SRGB color{colorChannel(face->DiffuseKr),
                                             colorChannel(face->DiffuseKg),
                                             colorChannel(face->DiffuseKb), 255};
        const CornerIndices& indices = face->getIndices();
        for (size_t k = 1; k + 1 < indices.size(); ++k) {
            // Points are numbered from 1 in the solid, from 0 in the package.
            const DWORD a = static_cast<DWORD>(indices[0]) - 1;
            const DWORD b = static_cast<DWORD>(indices[k]) - 1;
            const DWORD c = static_cast<DWORD>(indices[k + 1]) - 1;
            if (a >= points || b >= points || c >= points || a == b || b == c || a == c) {
                continue;
            }
            triangles.corners.push_back({{a, b, c}});
            triangles.colors.push_back(color);
        }
    }
    return triangles;
}

void addObject(Handle model, const Transformed3d& object) {
    Triangles triangles = trianglesOf(object);
    if (triangles.corners.empty()) {
        return;
    }
    const int32_t count = MeshPoints::count(object);
    if (triangles.corners.size() > std::numeric_limits<uint32_t>::max()) {
        throw Refused{};
    }
    std::vector<NMR::MODELMESHVERTEX> vertices;
    vertices.reserve(static_cast<size_t>(count));
    for (int32_t i = 1; i <= count; ++i) {
        const Point4& p = MeshPoints::at(object, i);
        vertices.push_back({{p.x, p.y, p.z}});
    }
    const Owned mesh = made([&](Handle* h) { return NMR::lib3mf_model_addmeshobject(model, h); });
    check(NMR::lib3mf_meshobject_setgeometry(
        mesh.get(), vertices.data(), static_cast<DWORD>(vertices.size()), triangles.corners.data(),
        static_cast<DWORD>(triangles.corners.size())));
    const Owned colors = made(
        [&](Handle* h) { return NMR::lib3mf_meshobject_createpropertyhandler(mesh.get(), h); });
    for (DWORD i = 0; i < triangles.colors.size(); ++i) {
        NMR::MODELMESHCOLOR_SRGB color = triangles.colors[i];
        check(NMR::lib3mf_propertyhandler_setsinglecolor(colors.get(), i, &color));
    }
    // The package must name the object's own colour too: that of its first triangle.
    const Owned fallback = made(
        [&](Handle* h) { return NMR::lib3mf_object_createdefaultpropertyhandler(mesh.get(), h); });
    check(NMR::lib3mf_defaultpropertyhandler_setcolor(fallback.get(), triangles.colors.data()));
    made([&](Handle* h) { return NMR::lib3mf_model_addbuilditem(model, mesh.get(), nullptr, h); });
}

} // namespace

std::vector<uint8_t> ThreeMfWriter::encode(const ObjectList& objects) {
    try {
        const Owned model = made([](Handle* h) { return NMR::lib3mf_createmodel(h); });
        check(NMR::lib3mf_model_setunit(model.get(), NMR::MODELUNIT_MILLIMETER));
        for (const auto& object : objects) {
            addObject(model.get(), *object);
        }
        const Owned writer =
            made([&](Handle* h) { return NMR::lib3mf_model_querywriter(model.get(), "3mf", h); });
        Package package;
        check(NMR::lib3mf_writer_writetocallback(
            writer.get(), reinterpret_cast<void*>(&Package::write),
            reinterpret_cast<void*>(&Package::seek), &package));
        return std::move(package.bytes);
    } catch (const Refused&) {
        return {};
    }
}
