#include "io/ThreeMfWriter.h"
#include "scene/Face3d.h"
#include "support/TestSolids.h"

#include <Model/COM/NMR_DLLInterfaces.h>
#include <gtest/gtest.h>

// lib3mf 1.8.1's reader leaks a few of libzip's allocations on every package it reads; the
// leak checker is told so, for this reader alone serves the tests.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libzip.so\n";
}

namespace {

// What lib3mf's own reader finds of each mesh object in a package: its points, its triangles
// and the colours (0xRRGGBB) of its first and last triangle.
std::vector<std::array<uint32_t, 4>> readBack(std::vector<uint8_t> package) {
    std::vector<std::array<uint32_t, 4>> meshes;
    NMR::PLib3MFBase *model = nullptr, *reader = nullptr, *meshIterator = nullptr;
    NMR::lib3mf_createmodel(&model);
    NMR::lib3mf_model_queryreader(model, "3mf", &reader);
    EXPECT_EQ(NMR::lib3mf_reader_readfrombuffer(reader, package.data(), package.size()), 0);
    NMR::lib3mf_model_getmeshobjects(model, &meshIterator);
    BOOL more = false;
    while (NMR::lib3mf_resourceiterator_movenext(meshIterator, &more) == 0 && more) {
        NMR::PLib3MFBase *mesh = nullptr, *colors = nullptr;
        DWORD points = 0, triangles = 0;
        NMR::lib3mf_resourceiterator_getcurrent(meshIterator, &mesh);
        NMR::lib3mf_meshobject_getvertexcount(mesh, &points);
        NMR::lib3mf_meshobject_gettrianglecount(mesh, &triangles);
        NMR::lib3mf_meshobject_createpropertyhandler(mesh, &colors);
        std::array<uint32_t, 4> seen{points, triangles};
        for (const DWORD i : {0u, 1u}) {
            NMR::MODELMESH_TRIANGLECOLOR_SRGB color{};
            NMR::lib3mf_propertyhandler_getcolor(colors, i * (triangles - 1), &color);
            const NMR::MODELMESHCOLOR_SRGB& c = color.m_Colors[0];
            seen[2 + i] = uint32_t{c.m_Red} << 16 | uint32_t{c.m_Green} << 8 | c.m_Blue;
        }
        meshes.push_back(seen);
        NMR::lib3mf_release(colors);
        NMR::lib3mf_release(mesh);
    }
    for (NMR::PLib3MFBase* owned : {meshIterator, reader, model}) {
        NMR::lib3mf_release(owned);
    }
    return meshes;
}

} // namespace

TEST(ThreeMfWriter, EveryObjectWithTrianglesIsAMeshOfFannedFacesInItsFacesColours) {
    const auto cube = makeObject();
    const auto faces = cube->getFaces();
    for (const auto& face : faces) {
        face->DiffuseKr = 0.2f;
        face->DiffuseKg = 0.4f;
        face->DiffuseKb = 0.6f;
    }
    faces.back()->DiffuseKr = 1;
    // A corner named twice makes a triangle without area, which the package may not hold.
    std::vector<int32_t> repeated = faces.front()->getIndices();
    repeated.insert(repeated.begin() + 1, repeated[0]);
    faces.front()->SetPoints(repeated);

    const auto meshes = readBack(ThreeMfWriter::encode({cube, std::make_shared<Transformed3d>()}));
    ASSERT_EQ(meshes.size(), 1u); // the object without points has no mesh
    EXPECT_EQ(meshes[0], (std::array<uint32_t, 4>{8, 12, 0x336699, 0xFF6699}));
}
