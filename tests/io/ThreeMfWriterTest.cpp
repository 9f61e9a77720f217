#include "io/ThreeMfWriter.h"
#include "scene/Face3d.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"
#include "support/TestSolids.h"

#include <Model/COM/NMR_DLLInterfaces.h>
#include <gtest/gtest.h>

namespace {

using Handle = NMR::PLib3MFBase*;

// What lib3mf's own reader finds in a package: per mesh object its points, triangles and
// the colour of its first and last triangle's first corner (0xRRGGBB).
struct MeshSeen {
    DWORD points = 0;
    DWORD triangles = 0;
    uint32_t firstColor = 0;
    uint32_t lastColor = 0;
};

uint32_t colorOf(Handle colors, DWORD triangle) {
    NMR::MODELMESH_TRIANGLECOLOR_SRGB seen{};
    EXPECT_EQ(NMR::lib3mf_propertyhandler_getcolor(colors, triangle, &seen), LIB3MF_OK);
    const NMR::MODELMESHCOLOR_SRGB& c = seen.m_Colors[0];
    return uint32_t{c.m_Red} << 16 | uint32_t{c.m_Green} << 8 | c.m_Blue;
}

std::vector<MeshSeen> readBack(std::vector<uint8_t> package, DWORD& unit) {
    std::vector<MeshSeen> meshes;
    Handle model = nullptr;
    Handle reader = nullptr;
    Handle iterator = nullptr;
    EXPECT_EQ(NMR::lib3mf_createmodel(&model), LIB3MF_OK);
    EXPECT_EQ(NMR::lib3mf_model_queryreader(model, "3mf", &reader), LIB3MF_OK);
    EXPECT_EQ(NMR::lib3mf_reader_readfrombuffer(reader, package.data(), package.size()), LIB3MF_OK);
    EXPECT_EQ(NMR::lib3mf_model_getunit(model, &unit), LIB3MF_OK);
    EXPECT_EQ(NMR::lib3mf_model_getmeshobjects(model, &iterator), LIB3MF_OK);
    BOOL more = false;
    while (NMR::lib3mf_resourceiterator_movenext(iterator, &more) == LIB3MF_OK && more) {
        Handle mesh = nullptr;
        Handle colors = nullptr;
        MeshSeen seen;
        NMR::lib3mf_resourceiterator_getcurrent(iterator, &mesh);
        NMR::lib3mf_meshobject_getvertexcount(mesh, &seen.points);
        NMR::lib3mf_meshobject_gettrianglecount(mesh, &seen.triangles);
        NMR::lib3mf_meshobject_createpropertyhandler(mesh, &colors);
        seen.firstColor = colorOf(colors, 0);
        seen.lastColor = colorOf(colors, seen.triangles - 1);
        meshes.push_back(seen);
        NMR::lib3mf_release(colors);
        NMR::lib3mf_release(mesh);
    }
    for (Handle owned : {iterator, reader, model}) {
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
    // A corner named twice makes a triangle without area: the package may not hold it.
    auto repeated = faces.front()->getIndices();
    repeated.insert(repeated.begin() + 1, repeated[0]);
    faces.front()->SetPoints(repeated);
    const auto empty = std::make_shared<Transformed3d>();

    DWORD unit = 0;
    const std::vector<MeshSeen> meshes = readBack(ThreeMfWriter::encode({cube, empty}), unit);
    EXPECT_EQ(unit, DWORD{NMR::MODELUNIT_MILLIMETER});
    ASSERT_EQ(meshes.size(), 1u);
    EXPECT_EQ(meshes[0].points, 8u);
    EXPECT_EQ(meshes[0].triangles, 12u);
    EXPECT_EQ(meshes[0].firstColor, 0x336699u);
    EXPECT_EQ(meshes[0].lastColor, 0xFF6699u);
}
