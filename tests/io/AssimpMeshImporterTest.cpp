#include "io/AssimpMeshImporter.h"

#include "scene/Face3d.h"
#include "scene/FaceCoefficients.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"
#include "support/TempFolder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace {

using Corners = std::vector<int32_t>;

struct Imported {
    std::optional<ObjectList> objects;
    std::string error;
};

// Writes each (name, content) into the folder and imports the first.
Imported importFiles(const TempFolder& folder,
                     const std::vector<std::pair<std::string, std::string>>& files) {
    for (const auto& [name, content] : files) {
        std::ofstream(folder.file(name), std::ios::binary) << content;
    }
    AssimpMeshImporter importer;
    Imported result{importer.importFile(folder.file(files.front().first)), ""};
    result.error = importer.lastError();
    return result;
}

std::array<float, 3> point(const Solid3d& solid, int32_t index) {
    const Point4& p = solid.getPointRecord(index).coord;
    return {p.x, p.y, p.z};
}

// Assimp reads the words of an ASCII STL whatever white space parts them.
const char* const twoTriangles = R"(solid two
facet normal 0 0 1 outer loop vertex 0 0 0 vertex 1 0 0 vertex 1 1 0 endloop endfacet
facet normal 0 0 1 outer loop vertex 0 0 0 vertex 1 1 0 vertex 0 1 0 endloop endfacet
endsolid two
)";

// STL corners at one place become one shared point; OFF keeps its points and a quad stays
// one face; a mirroring glTF node turns the corners so that faces still wind outwards; the
// indexed meshes of one object keep their points one after the other (the second primitive,
// triangle 1 2 4 of the square's points, becomes a mesh with its own four points). STL says
// nothing of surfaces: its faces take an extrusion's unticked values.
TEST(AssimpMeshImporter, PointsAndCornersComeThroughAsTheFileListsThem) {
    const std::string off = "OFF\n5 2 0\n0 0 0\n1 0 0\n1 1 0\n0 1 0\n1 0 1\n3 1 4 2\n4 0 1 2 3\n";
    const std::string gltf =
        R"({"asset": {"version": "2.0"}, "scene": 0, "scenes": [{"nodes": [0]}],
  "buffers": [{"uri": "data:application/octet-stream;base64,)";
    // One triangle (0,0,0) (1,0,0) (0,1,0), mirrored in x, with a base colour.
    const std::string mirror = gltf + R"(AAAAAAAAAAAAAAAAAACAPwAAAAAAAAAAAAAAAAAAgD8AAAAA",
  "byteLength": 36}], "nodes": [{"mesh": 0, "scale": [-1, 1, 1]}],
  "meshes": [{"primitives": [{"attributes": {"POSITION": 0}, "material": 0}]}],
  "materials": [{"pbrMetallicRoughness": {"baseColorFactor": [0.25, 0.5, 0.75, 1]}}],
  "bufferViews": [{"buffer": 0, "byteLength": 36}], "accessors": [{"bufferView": 0,
    "componentType": 5126, "count": 3, "type": "VEC3", "min": [0, 0, 0], "max": [1, 1, 0]}]})";
    const std::string two =
        gltf +
        R"(AAAAAAAAAAAAAAAAAACAPwAAAAAAAAAAAACAPwAAgD8AAAAAAAAAAAAAgD8AAAAAAAABAAIAAAACAAMAAAABAAMAAAA=",
  "byteLength": 68}], "nodes": [{"mesh": 0}], "meshes": [{"primitives": [{"attributes":
  {"POSITION": 0}, "indices": 1}, {"attributes": {"POSITION": 0}, "indices": 2}]}], "accessors":
  [{"bufferView": 0, "componentType": 5126, "count": 4, "type": "VEC3", "min": [0, 0, 0], "max":
  [1, 1, 0]}, {"bufferView": 1, "componentType": 5123, "count": 6, "type": "SCALAR"}, {"bufferView":
  1, "byteOffset": 12, "componentType": 5123, "count": 3, "type": "SCALAR"}], "bufferViews":
  [{"buffer": 0, "byteLength": 48}, {"buffer": 0, "byteOffset": 48, "byteLength": 20}]})";
    const struct {
        const char* name;
        int32_t points;
        std::vector<Corners> faces;
        int32_t index;
        std::array<float, 3> point;
        std::optional<float> green; // the diffuse green of the first face, where checked
        std::string content;
    } cases[] = {
        {"two.stl", 4, {{1, 2, 3}, {1, 3, 4}}, 4, {0, 1, 0}, 0.5f, twoTriangles},
        {"quad.off", 5, {{2, 5, 3}, {1, 2, 3, 4}}, 5, {1, 0, 1}, {}, off},
        {"mirror.gltf", 3, {{3, 2, 1}}, 2, {-1, 0, 0}, 0.5f, mirror},
        {"two.gltf", 8, {{1, 2, 3}, {1, 3, 4}, {5, 6, 8}}, 6, {1, 0, 0}, {}, two},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        TempFolder folder;
        const auto [objects, error] = importFiles(folder, {{c.name, c.content}});
        ASSERT_TRUE(objects) << error;
        ASSERT_EQ(objects->size(), 1u);
        const Solid3d& solid = *objects->front()->getSolid();
        EXPECT_EQ(solid.getNextPointIndex() - 1, c.points);
        ASSERT_EQ(solid.GetFaceNum(), std::ssize(c.faces));
        for (size_t f = 0; f < c.faces.size(); ++f) {
            EXPECT_EQ(solid.faces[f]->getIndices(), c.faces[f]) << "face " << f + 1;
        }
        EXPECT_EQ(point(solid, c.index), c.point);
        if (c.green) {
            EXPECT_EQ(solid.faces[0]->DiffuseKg, *c.green);
        }
        if (std::string_view(c.name).ends_with(".stl")) {
            EXPECT_EQ(FaceCoefficients::of(*solid.faces[0]), FaceCoefficients::unsaid);
        }
    }
}

TEST(AssimpMeshImporter, MaterialsBecomeCoefficientsOfTheOneSolidOfAnObject) {
    TempFolder folder;
    const auto [objects, error] = importFiles(
        folder, {{"box.obj", "mtllib box.mtl\no box\nv 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\n"
                             "usemtl red\nf 1 2 3\nusemtl shiny\nf 1 3 4\n"},
                 {"box.mtl", "newmtl red\nKa 0.25 0 0\nKd 1 0 0\nKs 0 0 0\nNs 0\n"
                             "newmtl shiny\nKa 0 0 0.5\nKd 0.25 0.5 0.75\nKs 0.2 0.4 0.6\n"
                             "Ns 400\n"}});
    ASSERT_TRUE(objects) << error;
    ASSERT_EQ(objects->size(), 1u);
    const Solid3d& solid = *objects->front()->getSolid();
    ASSERT_EQ(solid.GetFaceNum(), 2);
    const Face3d& red = *solid.faces[0];
    EXPECT_EQ(std::tuple(red.DiffuseKr, red.DiffuseKg, red.AmbientKr, red.SpecularK),
              std::tuple(1.0f, 0.0f, 0.25f, 0.0f));
    const Face3d& shiny = *solid.faces[1];
    EXPECT_EQ(std::tuple(shiny.DiffuseKr, shiny.DiffuseKg, shiny.DiffuseKb, shiny.AmbientKb),
              std::tuple(0.25f, 0.5f, 0.75f, 0.5f));
    EXPECT_FLOAT_EQ(shiny.SpecularK, 0.4f);
    EXPECT_EQ(shiny.SpecularN, 100.0f); // the exponent bar's end
}

// A zip archive of one stored entry, "_rels/.rels" holding "x", whose checksum says 0: the
// library's 3MF reader stops the whole process on the checksum error.
std::string zipWithBadChecksum() {
    using namespace std::string_literals;
    const std::string entry = "\x14\0\0\0\0\0\x4b\x44\x79\x5d"s      // version, flags, stored, time
                              "\0\0\0\0\x01\0\0\0\x01\0\0\0\x0b\0"s; // CRC 0, sizes 1, name
    const std::string name = "_rels/.rels";
    return "PK\x03\x04"s + entry + "\0\0"s + name + "x" + // local header
           "PK\x01\x02\x14\x03"s + entry + "\0\0\0\0\0\0\0\0\0\0\x80\x01\0\0\0\0"s +
           name +                                                     // central entry
           "PK\x05\x06\0\0\0\0\x01\0\x01\0\x39\0\0\0\x2a\0\0\0\0\0"s; // end record
}

TEST(AssimpMeshImporter, BadFilesAreRefusedInOneLine) {
    const struct {
        const char* name;
        std::string content;
        const char* error; // the start of the message
    } cases[] = {
        {"nan.off", "OFF\n3 1 0\n0 0 0\nnan 0 0\n0 1 0\n3 0 1 2\n", "a point is not a finite"},
        {"lines.obj", "v 0 0 0\nv 1 0 0\nl 1 2\n", "the file holds no polygons"},
        {"cut.stl", std::string(80, 'x') + std::string("\x10\0\0\0", 4), "Failed to determine STL"},
        {"empty.off", "", "File is empty"},
        {"crc.3mf", zipWithBadChecksum(), "the library failed on it (Aborted)"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        TempFolder folder;
        const auto [objects, error] = importFiles(folder, {{c.name, c.content}});
        EXPECT_FALSE(objects);
        EXPECT_TRUE(error.starts_with(c.error)) << error;
        EXPECT_EQ(error.find('\n'), std::string::npos) << error;
    }
}

TEST(AssimpMeshImporter, KnowsTheExtensionsItImports) {
    EXPECT_TRUE(AssimpMeshImporter::importsExtension("part.STL"));
    EXPECT_TRUE(AssimpMeshImporter::importsExtension("/a/b.c/part.3mf"));
    EXPECT_FALSE(AssimpMeshImporter::importsExtension("scene.tvm"));
    EXPECT_FALSE(AssimpMeshImporter::importsExtension("a.stl/part"));
    AssimpMeshImporter importer;
    const std::string_view stl = twoTriangles;
    EXPECT_TRUE(
        importer.importBytes({reinterpret_cast<const uint8_t*>(stl.data()), stl.size()}, ".STL"));
    EXPECT_FALSE(importer.importBytes({}, ".ply"));
    EXPECT_EQ(importer.lastError(), "not a format the importer reads");
}

} // namespace
