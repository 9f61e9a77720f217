#include "io/TavrinMeshIO.h"

#include "app/SceneDocument.h"
#include "geometry/CPoint3D.h"
#include "io/FileBytes.h"
#include "io/FileError.h"
#include "io/LittleEndianWriter.h"
#include "io/PosixFileSystem.h"
#include "render/KorvanOpsConsts.h"
#include "render/ViewportRenderer.h"
#include "scene/Transformed3d.h"
#include "support/RecordingCanvas.h"
#include "support/ScriptedPrompts.h"
#include "support/TempFolder.h"
#include "support/TestSolids.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using Bytes = std::vector<uint8_t>;
const float nan = std::numeric_limits<float>::quiet_NaN();
const float inf = std::numeric_limits<float>::infinity();

// File content from a list of values, each one an int32 or a float32.
struct Values {
    LittleEndianWriter out;
    template <class... T> Values& i(T... v) {
        (out.writeInt32(static_cast<int32_t>(v)), ...);
        return *this;
    }
    template <class... T> Values& f(T... v) {
        (out.writeFloat32(static_cast<float>(v)), ...);
        return *this;
    }
    Values& coefficients() { return f(0, 1, 2, 3, 4, 5, 6, 7); }
    Bytes bytes() { return out.take(); }
};

Bytes contentOf(const std::string& file) {
    Bytes bytes;
    EXPECT_FALSE(FileBytes::read(PosixFileSystem::instance(), file, 0, bytes)) << file;
    return bytes;
}

// Saves, expecting success, and returns the file's bytes.
Bytes saved(const ObjectList& objects, const std::string& file) {
    EXPECT_TRUE(TavrinMeshIO().saveFile(objects, file));
    return contentOf(TavrinMeshIO::normalizeFileName(file));
}

ObjectList opened(std::string name) {
    return TavrinMeshIO().OpenFile(name).value();
}

// One triangle with coefficients 10..17.
ObjectList triangleDocument() {
    auto solid = std::make_shared<Solid3d>();
    solid->addPointsArray(std::vector<float>{1, -2, 0.5f, 0, 1, 0, -0.0f, 0, 1});
    solid->AddFace(std::vector<int32_t>{1, 2, 3});
    solid->SetAmbientCoefficients(10, 11, 12);
    solid->SetDiffuseCoefficients(13, 14, 15);
    solid->SetSpecularCoefficients(16, 17);
    return {makeObject(solid)};
}

// Odd values everywhere: signed zeros, denormals, the largest floats, an order number that
// is kept as stored, faces of four, two, none, one and three corners, and the largest
// exponent accepted; then a cube with the largest coefficient and the lowest exponent.
ObjectList mixedDocument() {
    const float tiny = std::numeric_limits<float>::denorm_min();
    const float huge = std::numeric_limits<float>::max();
    auto solid = std::make_shared<Solid3d>();
    solid->addPointsArray(
        std::vector<float>{-0.0f, tiny, 1e-40f, huge, -huge, 1.0f / 3, 7, 8, 9, -1, -2, -3});
    for (const auto& corners :
         std::vector<std::vector<int32_t>>{{4, 3, 2, 1}, {2, 2}, {}, {1}, {3, 1, 2}}) {
        solid->AddFace(corners);
    }
    solid->faces[0]->setOrderNumber(42);
    solid->SetAmbientCoefficients(-0.0f, tiny, 1e-40f);
    solid->SetDiffuseCoefficients(1, 0.5f, 1.0f / 3);
    solid->SetSpecularCoefficients(-0.0f, 32767);
    auto cube = makeCube(0.5f, 1, 2, 3);
    cube->SetSpecularCoefficients(huge, -32768);
    return {makeObject(solid), makeObject(cube)};
}

// Draws the objects in every display mode; what matters is that it returns.
void drawEveryWay(const ObjectList& objects) {
    SceneDocument document = SceneDocument::startUp();
    document.showGrid = false;
    document.solids = objects;
    for (int way = 0; way < 4; ++way) {
        ViewSpecs view;
        KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewIsometric, view);
        view.HideSurfaces = way & 1;
        view.wireFrame = way & 2;
        RecordingCanvas canvas(200, 150);
        ViewportRenderer().redrawViewport(canvas, view, document.scene());
        for (const auto& object : objects) {
            object->createFaceRegionEncaps(view.HideSurfaces, true, 2);
        }
    }
}

} // namespace

TEST(TavrinMeshIO, WritesLittleEndianRecordsOverTheStartOfTheOldFileOrNothingAtAll) {
    TempFolder folder;
    const std::string file = folder.file("t.tvm");
    const Bytes old = saved({makeObject(makeCube())}, file);
    const Bytes bytes = saved(triangleDocument(), file);
    // The records themselves are the replayed session's file; here, the old file's tail stays
    // behind them, and only the new document is read back.
    const Bytes fresh = saved(triangleDocument(), folder.file("fresh.tvm"));
    Bytes expected = fresh;
    expected.insert(expected.end(), old.begin() + std::ssize(fresh), old.end());
    EXPECT_EQ(bytes, expected);
    EXPECT_EQ(saved(opened(file), folder.file("again.tvm")), fresh);

    EXPECT_EQ(saved({}, folder.file("empty.tvm")), (Bytes{0, 0, 0, 0}));
    // A never-filled solid still has its one record at the origin; an object without a
    // solid has no points at all.
    auto pointsOnly = std::make_shared<Solid3d>();
    pointsOnly->addPointsArray(std::vector<float>{1, 2, 3});
    EXPECT_EQ(saved({makeObject(pointsOnly), makeObject(std::make_shared<Solid3d>()),
                     std::make_shared<Transformed3d>()},
                    folder.file("small.tvm")),
              Values().i(3, 1).f(1, 2, 3).i(0, 1).f(0, 0, 0).i(0, 0, 0).bytes());

    // What an extrusion that overflows or a typed exponent can make, the reader would refuse:
    // the document is not saved and the old file stays as it was.
    const std::tuple<const char*, float, float, float> breaks[] = {
        {"exponent 32768", 0, 32768, 0},
        {"exponent -32769", 0, -32769, 0},
        {"NaN coefficient", nan, 1, 0},
        {"infinite coordinate", 0, 1, -inf},
        {"NaN coordinate", 0, 1, nan}};
    for (const auto& [what, specularK, specularN, x] : breaks) {
        auto broken = makeCube();
        broken->setSpecularK(specularK);
        broken->setSpecularN(specularN);
        broken->addPointsArray(std::vector{x, 0.f, 0.f});
        TavrinMeshIO io;
        EXPECT_FALSE(io.saveFile({makeObject(broken)}, file)) << what;
        EXPECT_EQ(io.getLastError(), FileError::unstorableValue) << what;
        EXPECT_EQ(contentOf(file), bytes) << what;
    }
}

TEST(TavrinMeshIO, CorruptFilesAreRejected) {
    const int32_t big = std::numeric_limits<int32_t>::max();
    const auto triangle = [](int32_t a, int32_t b, int32_t c) {
        return Values().i(1, 3).f(0, 0, 0, 1, 0, 0, 0, 1, 0).i(1, 1, 3, a, b, c);
    };
    ASSERT_TRUE(TavrinMeshIO::parse(triangle(1, 2, 3).coefficients().bytes())); // the valid base
    // Files cut short are left to the every-prefix loop below.
    const std::vector<std::pair<const char*, Bytes>> cases = {
        {"negative point count", Values().i(1, -1, 0).bytes()},
        {"negative face count", Values().i(1, 0, -1).bytes()},
        {"negative index count", Values().i(1, 0, 1, 1, -1).coefficients().bytes()},
        {"huge object count", Values().i(big, 0, 0).bytes()},
        {"huge point count", Values().i(1, big).f(0, 0, 0).i(0).bytes()},
        {"huge face count", Values().i(1, 0, big, 1, 0).coefficients().bytes()},
        {"huge index count", Values().i(1, 1).f(0, 0, 0).i(1, 1, big, 1).coefficients().bytes()},
        {"index 0", triangle(0, 2, 3).coefficients().bytes()},
        {"index beyond the points", triangle(1, 2, 4).coefficients().bytes()},
        {"index into a solid without points", Values().i(1, 0, 1, 1, 1, 1).coefficients().bytes()},
        {"NaN coordinate", Values().i(1, 1).f(0, nan, 0).i(0).bytes()},
        {"NaN coefficient", triangle(1, 2, 3).f(0, 0, 0, 0, 0, 0, 0, nan).bytes()},
        {"exponent beyond 16 bits", triangle(1, 2, 3).f(0, 0, 0, 0, 0, 0, 0, 32768).bytes()},
        {"infinite coefficient", triangle(1, 2, 3).f(inf).coefficients().bytes()},
    };
    for (const auto& [what, bytes] : cases) {
        EXPECT_FALSE(TavrinMeshIO::parse(bytes)) << what;
    }

    // An object count of 0 or below is an empty document, whatever follows.
    EXPECT_TRUE(TavrinMeshIO::parse(Values().i(-1, 99).f(1).bytes()).value().empty());
}

TEST(TavrinMeshIO, ReadsBackEveryBitAndSurvivesEveryCutAndDamagedByte) {
    TempFolder folder;
    const Bytes valid = saved(mixedDocument(), folder.file("doc.tvm"));
    const ObjectList loaded = opened(folder.file("doc.tvm"));
    EXPECT_EQ(saved(loaded, folder.file("again.tvm")), valid);
    const auto& solid = *loaded[0]->getSolid();
    for (const auto& face : solid.faces) {
        EXPECT_EQ(face->getSolidContainer(), &solid);
    }
    ScriptedPrompts quiet; // arithmetic reports from drawing odd and damaged solids
    drawEveryWay(loaded);

    for (size_t length = 0; length < valid.size(); ++length) {
        EXPECT_FALSE(TavrinMeshIO::parse(std::span(valid).first(length))) << length;
    }
    size_t accepted = 0;
    for (size_t at = 0; at < valid.size(); ++at) {
        const int b = valid[at];
        for (const int damaged : {b ^ 0xFF, 0x80, 0x7F, 0x00, (b + 1) & 0xFF}) {
            Bytes bytes = valid;
            bytes[at] = static_cast<uint8_t>(damaged);
            const auto objects = TavrinMeshIO::parse(bytes);
            accepted += objects ? 1 : 0;
            // Drawn for one damage of each byte; the reader's fuzz run draws whatever it takes.
            if (objects && damaged == (b ^ 0xFF)) {
                drawEveryWay(*objects);
            }
        }
    }
    EXPECT_GT(accepted, 0u); // coordinates and coefficients take most values
}
