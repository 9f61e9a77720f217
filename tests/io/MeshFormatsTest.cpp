#include "geometry/CPoint3D.h"
#include "io/MeshFormatError.h"
#include "io/ObjReader.h"
#include "io/ObjWriter.h"
#include "io/PlyReader.h"
#include "io/PlyWriter.h"
#include "io/StlReader.h"
#include "io/StlWriter.h"
#include "scene/FaceCoefficients.h"
#include "scene/Transformed3d.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>

namespace {

using Bytes = std::vector<uint8_t>;

Bytes bytesOf(const std::string& text) {
    return {text.begin(), text.end()};
}

// The message a reader refuses the input with, or "" when it reads it.
template <class Read> std::string refusal(Read read) {
    try {
        read();
    } catch (const MeshFormatError& error) {
        return error.what();
    }
    return "";
}

std::vector<float> coordinatesOf(const Transformed3d& object) {
    std::vector<float> xyz;
    for (const auto& point : object.getPoints()) {
        const Point4 p = point->getRecord().coord;
        xyz.insert(xyz.end(), {p.x, p.y, p.z});
    }
    return xyz;
}

// An object of one solid with these points and faces.
std::shared_ptr<Transformed3d> meshOf(const std::vector<float>& xyz,
                                      const std::vector<std::vector<int32_t>>& faces) {
    auto object = std::make_shared<Transformed3d>();
    object->setSolid(std::make_shared<Solid3d>());
    object->getSolid()->addPointsArray(xyz);
    for (const auto& corners : faces) {
        object->getSolid()->AddFace(corners);
    }
    return object;
}

// A 2 by 2 square listed from its second corner.
const auto quad = [] { return meshOf({0, 0, 0, 2, 0, 0, 2, 2, 0, 0, 2, 0}, {{2, 3, 4, 1}}); };

const std::string plyTriangle = "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x\n"
                                "property float y\nproperty float z\nelement face 1\n"
                                "property list uchar int vertex_indices\nend_header\n";

} // namespace

TEST(MeshFormats, PlyInEveryEncodingKeepsVertexOrderCornersAndColours) {
    // A quad listed from its third corner, coloured, and a triangle, coloured otherwise.
    const std::string header = "element vertex 4\nproperty float x\nproperty float y\n"
                               "property float z\nelement face 2\nproperty list uchar int "
                               "vertex_indices\nproperty uchar red\nproperty uchar green\n"
                               "property uchar blue\nend_header\n";
    const std::vector<float> xyz{0, 0, 0, 1, 0, 0, 1, 1, 0, 0.1f, 1, -2.5f};
    const std::vector<std::pair<uint32_t, int>> faces{{4, 1},   {2, 4},  {3, 4}, {0, 4}, {1, 4},
                                                      {255, 1}, {51, 1}, {0, 1}, {3, 1}, {0, 4},
                                                      {1, 4},   {3, 4},  {0, 1}, {0, 1}, {255, 1}};
    const auto binary = [&](bool big) {
        Bytes bytes = bytesOf(std::string("ply\nformat binary_") + (big ? "big" : "little") +
                              "_endian 1.0\n" + header);
        const auto put = [&](uint32_t value, int size) {
            for (int i = 0; i < size; ++i) {
                bytes.push_back(static_cast<uint8_t>(value >> 8 * (big ? size - 1 - i : i)));
            }
        };
        for (const float value : xyz) {
            put(std::bit_cast<uint32_t>(value), 4);
        }
        for (const auto& [value, size] : faces) {
            put(value, size);
        }
        return bytes;
    };
    for (const Bytes& file :
         {bytesOf("ply\nformat ascii 1.0\n" + header +
                  "0 0 0\n1 0 0\n1 1 0\n0.1 1 -2.5\n4 2 3 0 1 255 51 0\n3 0 1 3 0 0 255\n"),
          binary(false), binary(true)}) {
        const ObjectList objects = PlyReader::parse(file);
        ASSERT_EQ(objects.size(), 1u);
        EXPECT_EQ(coordinatesOf(*objects[0]), xyz);
        const FaceList read = objects[0]->getFaces();
        ASSERT_EQ(read.size(), 2u);
        EXPECT_EQ(read[0]->getIndices(), (std::vector<int32_t>{3, 4, 1, 2}));
        EXPECT_EQ(read[1]->getIndices(), (std::vector<int32_t>{1, 2, 4}));
        EXPECT_EQ(std::tuple(read[0]->DiffuseKr, read[0]->DiffuseKg, read[1]->DiffuseKb,
                             read[1]->DiffuseKr),
                  std::tuple(1.0f, 0.2f, 1.0f, 0.0f));
    }
}

TEST(MeshFormats, BadPlyFilesAreRefusedWithOneLine) {
    const std::string cube = "ply\nformat binary_little_endian 1.0\nelement vertex 8\n"
                             "property float x\nproperty float y\nproperty float z\n";
    // A triangle whose vertices and face carry korvan_solid.
    const std::string numbered = "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x\n"
                                 "property float y\nproperty float z\nproperty uint korvan_solid\n"
                                 "element face 1\nproperty list uchar int vertex_indices\n"
                                 "property int korvan_solid\nend_header\n";
    const std::pair<std::string, std::string> cases[] = {
        {"", "not a PLY file"},
        {"ply\nformat ascii 1.0\nelement vertex 1\n", "the header has no end_header line"},
        {"ply\nformat ascii 1.0\nelement vertex 1\nproperty flaot x\nend_header\n",
         "the header names an unknown type 'flaot'"},
        {plyTriangle + "0 0 0\n1 0 0\n0 1", "the file ends early"},
        {plyTriangle + "0 0 0\n1 0 0\n0 1 0\n3 0 1 7\n",
         "face 0 uses vertex 7, which is not one of its solid's"},
        {plyTriangle + "0 0 0\n1 0 0\n0 1 0\n3 0 1\n", "the file ends early"},
        {plyTriangle + "0 0 0\n1 0 0\n0 x 0\n3 0 1 2\n", "'x' is not a number of its type"},
        {plyTriangle + "0 0 0\n1 0 nan\n0 1 0\n3 0 1 2\n", "vertex 1 is not a finite number"},
        {plyTriangle + "0 0 0\n1 0 0\n0 1 0\n300 0 1 2\n", "'300' is out of its type's range"},
        {cube + "end_header\n", "element vertex cannot fit in the rest of the file"},
        {numbered + "0 0 0 0\n1 0 0 1\n0 1 0 0\n3 0 1 2 0\n",
         "vertex 2 is out of its solid's order"},
        {numbered + "0 0 0 0\n1 0 0 0\n0 1 0 0\n3 0 1 2 1\n", "face 0 names solid 1 of 1"},
        {numbered + "0 0 0 1\n1 0 0 1\n0 1 0 1\n3 0 1 2 0\n",
         "vertex 0 is out of its solid's order"},
        {"ply\nformat ascii 1.0\nelement vertex 1\nproperty float x\nproperty float y\n"
         "property float z\nproperty list uchar uint korvan_solid\nend_header\n0 0 0 2 0 1\n",
         "vertex property korvan_solid must be a single value"},
        {"ply\nformat ascii 1.0\nelement vertex 2000000000\nproperty float x\nproperty float y\n"
         "property float z\nend_header\n0 0 0\n",
         "element vertex cannot fit in the rest of the file"},
        {"ply\nformat binary_little_endian 1.0\nelement vertex 0\nproperty float x\n"
         "property float y\nproperty float z\nelement face 1\n"
         "property list uint int vertex_indices\nend_header\n\xff\xff\xff\x0f",
         "a list of face 0 cannot fit in the rest of the file"},
        {"ply\nformat binary_little_endian 1.0\nelement vertex 0\nproperty float x\n"
         "property float y\nproperty float z\nelement face 1\n"
         "property list float int vertex_indices\nend_header\n\xca\xf2\x49\x71", // 1e30
         "a list of face 0 cannot fit in the rest of the file"},
        {"ply\nformat ascii 1.0\nelement vertex 99999999999999999999\nend_header\n",
         "element vertex has no valid count"},
        {"ply\nformat ascii 1.0\nelement junk 1000000\nend_header\n",
         "element junk has no properties"},
    };
    for (const auto& [file, message] : cases) {
        EXPECT_EQ(refusal([&] { PlyReader::parse(bytesOf(file)); }), message) << file;
    }
}

TEST(MeshFormats, ObjObjectsKeepTheirVerticesCornersAndMaterials) {
    const std::string obj = "mtllib look.mtl\nv 0 0 0\nv 1 0 0\nv 1 1 0 1\nf 1 2 4\n"
                            "o first\nv 0 1 0\nusemtl red\nf 4 1 -3/1 3//2\n"
                            "o second # shares the first's vertices\nusemtl none\nf 1 2 3\n";
    const std::string mtl = "newmtl red\nKa 0.25\nKd 1 0 0\nKs 0.1 0.5 0.3\nNs 20\n";
    const ObjectList objects =
        ObjReader::parse(obj, [&](const std::string& name) -> std::optional<std::string> {
            return name == "look.mtl" ? std::optional(mtl) : std::nullopt;
        });
    ASSERT_EQ(objects.size(), 3u); // what comes before the first "o" is an object too
    // The first object reaches forward to vertex 4 for its face, "first" back to vertex 1.
    const std::vector<float> all{0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0};
    EXPECT_EQ(coordinatesOf(*objects[0]), all);
    EXPECT_EQ(objects[0]->getFaces().at(0)->getIndices(), (std::vector<int32_t>{1, 2, 4}));
    EXPECT_EQ(coordinatesOf(*objects[1]), all);
    const auto face = objects[1]->getFaces().at(0);
    EXPECT_EQ(face->getIndices(), (std::vector<int32_t>{4, 1, 2, 3}));
    EXPECT_EQ(std::tuple(face->AmbientKr, face->AmbientKb, face->DiffuseKr, face->SpecularK,
                         face->SpecularN),
              std::tuple(0.25f, 0.25f, 1.0f, 0.5f, 20.0f));
    EXPECT_EQ(objects[2]->getFaces().at(0)->DiffuseKr, 0.0f);
    EXPECT_EQ(objects[2]->getFaces().at(0)->getIndices(), (std::vector<int32_t>{1, 2, 3}));
}

TEST(MeshFormats, BadObjFilesAreRefusedWithOneLine) {
    std::string shared = "v 0 0 0\nv 1 1 1\n";
    for (int i = 0; i < 17; ++i) {
        shared += "o\nf 1 2\n";
    }
    const auto badLibrary = [](const std::string&) {
        return std::optional<std::string>("newmtl a\nNs 40000\n");
    };
    const std::pair<std::string, std::string> cases[] = {
        {"v 0 0 0\nf 1 2 1\n", "a face uses vertex 2 of 1"},
        {"v 0 0 0\n\nv 0 x 0\n", "line 3: 'x' is not a finite number"},
        {"v 0 0 0\nv 1e39 0 0\n", "line 2: '1e39' is not a finite number"},
        {"v 0 0\n", "line 1: a number is missing"},
        {"v 0 0 0\nf 1 0 1\n", "line 2: '0' is no vertex number"},
        {"v 0 0 0\nf 1 -2 1\n", "line 2: '-2' is no vertex number"},
        {"v 0 0 0\nf 99999999999999999999\n", "line 2: '99999999999999999999' is no vertex number"},
        {"mtllib a.mtl\n", "a.mtl line 2: the specular exponent is out of range"},
        {shared, "the objects share too many vertices"},
    };
    for (const auto& [file, message] : cases) {
        EXPECT_EQ(refusal([&] { ObjReader::parse(file, badLibrary); }), message) << file;
    }
}

TEST(MeshFormats, StlFansEachFaceFromItsFirstCornerWithTheTrianglesNormal) {
    const auto object = quad();
    const Bytes binary = StlWriter::encode({object}, false);
    ASSERT_EQ(binary.size(), 84u + 2 * 50);
    EXPECT_EQ(binary[80], 2);
    const auto floatAt = [&](size_t at) {
        return std::bit_cast<float>(static_cast<uint32_t>(
            binary[at] | binary[at + 1] << 8 | binary[at + 2] << 16 | binary[at + 3] << 24));
    };
    EXPECT_EQ(floatAt(84 + 8), 1.0f);       // the first normal's z
    EXPECT_EQ(floatAt(84 + 50 + 12), 2.0f); // the second triangle starts at corner 1, (2, 0, 0)
    EXPECT_EQ(floatAt(84 + 50 + 36), 0.0f); // and ends at corner 4, (0, 0, 0)
    const Bytes ascii = StlWriter::encode({object}, true);
    EXPECT_EQ(std::string(ascii.begin(), ascii.end()),
              "solid korvan\n facet normal 0 0 1\n  outer loop\n   vertex 2 0 0\n   vertex 2 2 0\n"
              "   vertex 0 2 0\n  endloop\n endfacet\n facet normal 0 0 1\n  outer loop\n"
              "   vertex 2 0 0\n   vertex 0 2 0\n   vertex 0 0 0\n  endloop\n endfacet\n"
              "endsolid korvan\n");
}

TEST(MeshFormats, AFaceOfMoreThan255CornersComesBackWholeFromPlyAndObj) {
    std::vector<float> xyz;
    std::vector<int32_t> corners;
    for (int i = 0; i < 300; ++i) {
        xyz.insert(xyz.end(), {std::cos(0.02f * static_cast<float>(i)), 0.1f, 1.0f / 3});
        corners.push_back(300 - i);
    }
    const auto object = meshOf(xyz, {corners});
    const ObjWriter::Text obj = ObjWriter::encode({object}, "a.mtl");
    for (const ObjectList& read :
         {PlyReader::parse(PlyWriter::encode({object})),
          ObjReader::parse(obj.obj, [&](const std::string&) { return std::optional(obj.mtl); })}) {
        ASSERT_EQ(read.size(), 1u);
        EXPECT_EQ(coordinatesOf(*read[0]), xyz);
        EXPECT_EQ(read[0]->getFaces().at(0)->getIndices(), corners);
    }
}

TEST(MeshFormats, StlJoinsCornersAtOnePlaceInEitherEncoding) {
    Bytes binary = StlWriter::encode({quad()}, false);
    binary[84 + 50 + 19] = 0x80; // the second triangle's first corner at y = -0
    Bytes headed = binary;
    std::copy_n("solid", 5, headed.begin()); // a binary header may start as ASCII does
    for (const Bytes& file : {binary, headed, StlWriter::encode({quad()}, true)}) {
        const ObjectList objects = StlReader::parse(file);
        ASSERT_EQ(objects.size(), 1u);
        EXPECT_EQ(coordinatesOf(*objects[0]),
                  (std::vector<float>{2, 0, 0, 2, 2, 0, 0, 2, 0, 0, 0, 0}));
        const FaceList faces = objects[0]->getFaces();
        ASSERT_EQ(faces.size(), 2u);
        EXPECT_EQ(faces[0]->getIndices(), (std::vector<int32_t>{1, 2, 3}));
        EXPECT_EQ(faces[1]->getIndices(), (std::vector<int32_t>{1, 3, 4}));
        EXPECT_EQ(FaceCoefficients::of(*faces[1]), FaceCoefficients::unsaid);
    }
    // Enough points that corners meet other points in the join table's probes.
    std::vector<float> xyz;
    std::vector<std::vector<int32_t>> triangles;
    for (int i = 0; i < 400; ++i) {
        xyz.insert(xyz.end(), {static_cast<float>(i % 20), static_cast<float>(i / 20), 0.5f});
        triangles.push_back({i + 1, i + 2, i + 21});
    }
    triangles.resize(380);
    const auto grid = meshOf(xyz, triangles);
    EXPECT_EQ(coordinatesOf(*StlReader::parse(StlWriter::encode({grid}, false)).at(0)).size(),
              xyz.size());
    const std::string facet = "facet normal 0 0 1 outer loop vertex 0 0 0 vertex 1 0 0 vertex ";
    const std::pair<Bytes, std::string> cases[] = {
        {Bytes(binary.begin(), binary.end() - 1),
         "the file holds 183 bytes, too few for its 2 facets"},
        {Bytes(84), "the file holds no facets"},
        {bytesOf("solid a\n" + facet + "1 1 0 endfacet endsolid"),
         "line 2: 'endfacet' where 'endloop' belongs"},
        {bytesOf("solid a\n" + facet + "1 nan 0 endloop endfacet endsolid"),
         "the facet of line 2: a point is not a finite number"},
        {bytesOf("solid a\n" + facet + "1 x\x10 0"), "line 2: 'x?' is not a number"},
    };
    for (const auto& [file, message] : cases) {
        EXPECT_EQ(refusal([&] { StlReader::parse(file); }), message);
    }
}
