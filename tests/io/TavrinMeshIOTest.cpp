#include "io/TavrinMeshIO.h"

#include "geometry/CPoint3D.h"
#include "io/FileBytes.h"
#include "io/LittleEndianWriter.h"
#include "render/KorvanOpsConsts.h"
#include "render/ViewportRenderer.h"
#include "scene/Transformed3d.h"
#include "support/RecordingCanvas.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSolids.h"

#include <bit>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// A fresh folder per test, removed with everything in it afterwards.
struct TempFolder {
    fs::path path;
    TempFolder() {
        static int counter = 0;
        const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
        path = fs::temp_directory_path() / ("korvan-tvm-" + std::to_string(::getpid()) + "-" +
                                            test->name() + "-" + std::to_string(++counter));
        fs::create_directories(path);
    }
    ~TempFolder() { fs::remove_all(path); }
    std::string file(const std::string& name) const { return (path / name).string(); }
    std::vector<fs::path> entries() const {
        return {fs::directory_iterator(path), fs::directory_iterator()};
    }
};

std::vector<uint8_t> bytesOf(const std::string& file) {
    return FileBytes::read(file, 0).value();
}

void writeBytes(const std::string& file, const std::vector<uint8_t>& bytes) {
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

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
    Values& coefficients(float first = 0) {
        for (int k = 0; k < 8; ++k) {
            f(first + static_cast<float>(k));
        }
        return *this;
    }
    std::vector<uint8_t> bytes() { return out.take(); }
};

std::shared_ptr<Transformed3d> objectWith(std::shared_ptr<Solid3d> solid) {
    auto object = std::make_shared<Transformed3d>();
    object->setSolid(std::move(solid));
    return object;
}

void setCoefficients(Face3d& face, float first) {
    float* const fields[] = {&face.AmbientKr, &face.AmbientKg, &face.AmbientKb, &face.DiffuseKr,
                             &face.DiffuseKg, &face.DiffuseKb, &face.SpecularK, &face.SpecularN};
    for (float* field : fields) {
        *field = first;
        first += 1;
    }
}

// One triangle: points (1, -2, 0.5), (0, 1, 0), (-0, 0, 1); face order 1, coefficients 10..17.
ObjectList triangleDocument() {
    auto solid = std::make_shared<Solid3d>();
    solid->addPointsArray(std::vector<float>{1, -2, 0.5f, 0, 1, 0, -0.0f, 0, 1});
    setCoefficients(*solid->AddFace(std::vector<int32_t>{1, 2, 3}), 10);
    return {objectWith(solid)};
}

uint32_t bits(float v) {
    return std::bit_cast<uint32_t>(v);
}

// Every point coordinate, face, index, order number and coefficient, bit for bit.
void expectSameSolids(const ObjectList& expected, const ObjectList& actual) {
    ASSERT_EQ(expected.size(), actual.size());
    for (size_t o = 0; o < expected.size(); ++o) {
        const auto want = expected[o]->getPoints();
        const auto got = actual[o]->getPoints();
        ASSERT_EQ(want.size(), got.size()) << "object " << o;
        for (size_t p = 0; p < want.size(); ++p) {
            const Point4 a = want[p]->getRecord().coord;
            const Point4 b = got[p]->getRecord().coord;
            EXPECT_EQ(bits(a.x), bits(b.x));
            EXPECT_EQ(bits(a.y), bits(b.y));
            EXPECT_EQ(bits(a.z), bits(b.z));
            EXPECT_EQ(b.w, 1.0f);
        }
        const FaceList wantFaces = expected[o]->getFaces();
        const FaceList gotFaces = actual[o]->getFaces();
        ASSERT_EQ(wantFaces.size(), gotFaces.size());
        for (size_t f = 0; f < wantFaces.size(); ++f) {
            const Face3d& a = *wantFaces[f];
            const Face3d& b = *gotFaces[f];
            EXPECT_EQ(a.getOrderNum(), b.getOrderNum());
            EXPECT_EQ(a.getIndices(), b.getIndices());
            EXPECT_EQ(a.NumPts, b.NumPts);
            const float wantK[] = {a.AmbientKr, a.AmbientKg, a.AmbientKb, a.DiffuseKr,
                                   a.DiffuseKg, a.DiffuseKb, a.SpecularK, a.SpecularN};
            const float gotK[] = {b.AmbientKr, b.AmbientKg, b.AmbientKb, b.DiffuseKr,
                                  b.DiffuseKg, b.DiffuseKb, b.SpecularK, b.SpecularN};
            for (int k = 0; k < 8; ++k) {
                EXPECT_EQ(bits(wantK[k]), bits(gotK[k])) << "face " << f << " coefficient " << k;
            }
            EXPECT_EQ(b.getSolidContainer(), actual[o]->getSolid().get());
            EXPECT_FALSE(b.IsCulled || b.isSelected());
        }
    }
}

// Draws the objects in every display mode; what matters is that it returns.
void drawEveryWay(const ObjectList& objects) {
    SceneDocument document = SceneDocument::startUp();
    document.showGrid = false;
    document.solids = objects;
    for (const bool hide : {true, false}) {
        for (const bool wire : {true, false}) {
            ViewSpecs view;
            KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewIsometric, view);
            view.HideSurfaces = hide;
            view.wireFrame = wire;
            RecordingCanvas canvas(200, 150);
            ViewportRenderer().redrawViewport(canvas, view, document);
            for (const auto& object : objects) {
                object->createFaceRegionEncaps(hide, true, 2);
            }
        }
    }
}

} // namespace

TEST(TavrinMeshIO, WritesLittleEndianRecordsAmbientBeforeDiffuse) {
    TempFolder folder;
    TavrinMeshIO io;
    ASSERT_TRUE(io.saveFile(triangleDocument(), folder.file("t.tvm")));
    const std::vector<uint8_t> file = bytesOf(folder.file("t.tvm"));
    // Points, then the face: order 1, 3 indices, ambient 10 11 12, diffuse 13 14 15, 16, 17.
    EXPECT_EQ(file, Values()
                        .i(1, 3)
                        .f(1, -2, 0.5f, 0, 1, 0, -0.0f, 0, 1)
                        .i(1, 1, 3, 1, 2, 3)
                        .coefficients(10)
                        .bytes());
    // The byte order itself, value by value: 1, then 1.0f, then -0.0f.
    EXPECT_EQ(std::vector<uint8_t>(file.begin(), file.begin() + 12),
              (std::vector<uint8_t>{1, 0, 0, 0, 3, 0, 0, 0, 0x00, 0x00, 0x80, 0x3F}));
    EXPECT_EQ(std::vector<uint8_t>(file.begin() + 32, file.begin() + 36),
              (std::vector<uint8_t>{0x00, 0x00, 0x00, 0x80}));
}

TEST(TavrinMeshIO, RoundTripKeepsEveryBitOfPointsFacesAndCoefficients) {
    auto odd = std::make_shared<Solid3d>();
    const float denormal = std::numeric_limits<float>::denorm_min();
    odd->addPointsArray(
        std::vector<float>{-0.0f, denormal, 1e-40f, std::numeric_limits<float>::max(),
                           -std::numeric_limits<float>::min(), 1.0f / 3, 7, 8, 9, -1, -2, -3});
    auto quad = std::make_shared<Face3d>();
    quad->setSolidContainer(odd.get());
    quad->setOrderNumber(42); // order numbers are stored as they are, not renumbered
    for (const int32_t index : {4, 3, 2, 1}) {
        quad->addIndex(index);
    }
    setCoefficients(*quad, -0.0f);
    odd->AddFace3D(quad);
    setCoefficients(*odd->AddFace(std::vector<int32_t>{2, 2}), denormal); // kept, never drawn
    odd->AddFace(std::vector<int32_t>{});
    const ObjectList document = {objectWith(odd), objectWith(makeCube(0.5f, 1, 2, 3))};
    document[1]->SetDiffuseCoefficients(0.1f, 0.2f, 0.3f);
    document[1]->SetSpecularCoefficients(0.7f, 12);

    TempFolder folder;
    TavrinMeshIO io;
    ASSERT_TRUE(io.saveFile(document, folder.file("doc")));
    std::string name = folder.file("doc");
    const std::optional<ObjectList> loaded = io.OpenFile(name);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(name, folder.file("doc.tvm"));
    expectSameSolids(document, *loaded);
    EXPECT_EQ((*loaded)[0]->getFaces()[1]->NumPts, 2);
}

TEST(TavrinMeshIO, SmallestDocumentsHaveTheirExactLayout) {
    TempFolder folder;
    TavrinMeshIO io;
    ASSERT_TRUE(io.saveFile({}, folder.file("empty.tvm")));
    EXPECT_EQ(bytesOf(folder.file("empty.tvm")), (std::vector<uint8_t>{0, 0, 0, 0}));
    std::string name = folder.file("empty.tvm");
    EXPECT_EQ(io.OpenFile(name)->size(), 0u);

    auto pointsOnly = std::make_shared<Solid3d>();
    pointsOnly->addPointsArray(std::vector<float>{1, 2, 3});
    const ObjectList document = {objectWith(pointsOnly), objectWith(std::make_shared<Solid3d>()),
                                 std::make_shared<Transformed3d>()};
    ASSERT_TRUE(io.saveFile(document, folder.file("small.tvm")));
    // A never-filled solid still has its one record at the origin; an object without a
    // solid has no points at all.
    EXPECT_EQ(bytesOf(folder.file("small.tvm")),
              Values().i(3, 1).f(1, 2, 3).i(0, 1).f(0, 0, 0).i(0, 0, 0).bytes());
    name = folder.file("small.tvm");
    const std::optional<ObjectList> loaded = io.OpenFile(name);
    ASSERT_TRUE(loaded);
    ASSERT_EQ(loaded->size(), 3u);
    EXPECT_EQ((*loaded)[2]->getPoints().size(), 1u); // a solid read with no points reports one
    EXPECT_EQ((*loaded)[2]->getFaces().size(), 0u);

    for (const int32_t count : {0, -1, std::numeric_limits<int32_t>::min()}) {
        const auto parsed = TavrinMeshIO::parse(Values().i(count, 99).f(1).bytes());
        ASSERT_TRUE(parsed) << count;
        EXPECT_TRUE(parsed->empty());
    }
}

TEST(TavrinMeshIO, NamesAreCleanedAndGetTheExtension) {
    EXPECT_EQ(TavrinMeshIO::normalizeFileName("scene"), "scene.tvm");
    EXPECT_EQ(TavrinMeshIO::normalizeFileName("scene.tvm"), "scene.tvm");
    EXPECT_EQ(TavrinMeshIO::normalizeFileName("scene.TVM"), "scene.TVM.tvm");
    EXPECT_EQ(TavrinMeshIO::normalizeFileName(std::string("scene.tvm\0   ", 13)), "scene.tvm");
    EXPECT_EQ(TavrinMeshIO::normalizeFileName("  a\tb\x7f\xc3\xa9.tvm "), "a b   .tvm");
    EXPECT_EQ(TavrinMeshIO::normalizeFileName("\xc3\xa9"), ".tvm");
    EXPECT_EQ(TavrinMeshIO().getExtension(), ".tvm");
}

TEST(TavrinMeshIO, ShorterSaveKeepsTheOldTailAndReadsOnlyTheNewDocument) {
    TempFolder folder;
    TavrinMeshIO io;
    const std::string file = folder.file("scene.tvm");
    ASSERT_TRUE(io.saveFile({objectWith(makeCube())}, file));
    const std::vector<uint8_t> before = bytesOf(file);
    const ObjectList small = triangleDocument();
    ASSERT_TRUE(io.saveFile(small, file));
    const std::vector<uint8_t> after = bytesOf(file);
    ASSERT_EQ(after.size(), before.size());
    const size_t newSize = 4 * 26; // the triangle document's records
    EXPECT_NE(before[4], after[4]);
    EXPECT_TRUE(std::equal(before.begin() + newSize, before.end(), after.begin() + newSize));
    std::string name = file;
    const auto loaded = io.OpenFile(name);
    ASSERT_TRUE(loaded);
    expectSameSolids(small, *loaded);
}

TEST(TavrinMeshIO, CorruptFilesAreRejected) {
    const int32_t big = std::numeric_limits<int32_t>::max();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float inf = std::numeric_limits<float>::infinity();
    const auto triangle = [](int32_t a, int32_t b, int32_t c) {
        return Values().i(1, 3).f(0, 0, 0, 1, 0, 0, 0, 1, 0).i(1, 1, 3, a, b, c);
    };
    ASSERT_TRUE(TavrinMeshIO::parse(triangle(1, 2, 3).coefficients().bytes())); // the valid base
    const std::vector<std::pair<const char*, std::vector<uint8_t>>> cases = {
        {"empty file", {}},
        {"object count cut short", {1, 0, 0}},
        {"objects missing", Values().i(2, 0, 0).bytes()},
        {"negative point count", Values().i(1, -1, 0).bytes()},
        {"negative face count", Values().i(1, 0, -1).bytes()},
        {"negative index count", Values().i(1, 0, 1, 1, -1).coefficients().bytes()},
        {"huge object count", Values().i(big, 0, 0).bytes()},
        {"huge point count", Values().i(1, big).f(0, 0, 0).i(0).bytes()},
        {"huge face count", Values().i(1, 0, big, 1, 0).coefficients().bytes()},
        {"huge index count", Values().i(1, 1).f(0, 0, 0).i(1, 1, big, 1).coefficients().bytes()},
        {"index 0", triangle(0, 2, 3).coefficients().bytes()},
        {"index beyond the points", triangle(1, 2, 4).coefficients().bytes()},
        {"negative index", triangle(1, -2, 3).coefficients().bytes()},
        {"index into a solid without points", Values().i(1, 0, 1, 1, 1, 1).coefficients().bytes()},
        {"coefficients cut short", triangle(1, 2, 3).f(0).bytes()},
        {"NaN coordinate", Values().i(1, 1).f(0, nan, 0).i(0).bytes()},
        {"infinite coordinate", Values().i(1, 1).f(-inf, 0, 0).i(0).bytes()},
        {"NaN coefficient", triangle(1, 2, 3).f(0, 0, 0, 0, 0, 0, 0, nan).bytes()},
        {"exponent beyond 16 bits", triangle(1, 2, 3).f(0, 0, 0, 0, 0, 0, 0, 32768).bytes()},
        {"infinite coefficient", triangle(1, 2, 3).f(inf).coefficients().bytes()},
    };
    for (const auto& [what, bytes] : cases) {
        EXPECT_FALSE(TavrinMeshIO::parse(bytes)) << what;
    }

    TempFolder folder;
    TavrinMeshIO io;
    std::string missing = folder.file("missing");
    EXPECT_FALSE(io.OpenFile(missing));
    EXPECT_EQ(missing, folder.file("missing.tvm"));
    fs::create_directory(folder.file("folder.tvm"));
    std::string aFolder = folder.file("folder.tvm");
    EXPECT_FALSE(io.OpenFile(aFolder));
    writeBytes(folder.file("bad.tvm"), Values().i(1, 0, -1).bytes());
    std::string bad = folder.file("bad.tvm");
    EXPECT_FALSE(io.OpenFile(bad));
}

TEST(TavrinMeshIO, EveryCutAndEveryDamagedByteIsReadSafelyOrRejected) {
    // A little of everything: a quad, a two-corner face, a face without corners, a second object.
    auto solid = std::make_shared<Solid3d>();
    solid->addPointsArray(std::vector<float>{0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0});
    setCoefficients(*solid->AddFace(std::vector<int32_t>{1, 2, 3, 4}), 0.5f);
    solid->AddFace(std::vector<int32_t>{4, 1});
    solid->AddFace(std::vector<int32_t>{});
    TempFolder folder;
    ASSERT_TRUE(TavrinMeshIO().saveFile({objectWith(solid), objectWith(makeCube(0.3f))},
                                        folder.file("seed.tvm")));
    const std::vector<uint8_t> valid = bytesOf(folder.file("seed.tvm"));
    ASSERT_TRUE(TavrinMeshIO::parse(valid));

    for (size_t length = 0; length < valid.size(); ++length) {
        EXPECT_FALSE(TavrinMeshIO::parse(std::span(valid).first(length))) << length;
    }
    ScriptedPrompts quiet; // arithmetic reports from drawing damaged solids
    size_t accepted = 0;
    for (size_t at = 0; at < valid.size(); ++at) {
        for (const auto damage :
             {+[](uint8_t b) { return static_cast<uint8_t>(b ^ 0xFF); },
              +[](uint8_t) { return uint8_t{0x80}; }, +[](uint8_t) { return uint8_t{0x7F}; },
              +[](uint8_t) { return uint8_t{0x00}; },
              +[](uint8_t b) { return static_cast<uint8_t>(b + 1); }}) {
            std::vector<uint8_t> bytes = valid;
            bytes[at] = damage(bytes[at]);
            if (const auto objects = TavrinMeshIO::parse(bytes)) {
                ++accepted;
                drawEveryWay(*objects);
            }
        }
    }
    EXPECT_GT(accepted, 0u); // coordinates and coefficients take most values
}

TEST(TavrinMeshIO, FacesWithFewCornersAndHugeCoordinatesDrawSafely) {
    const float huge = std::numeric_limits<float>::max();
    Values file;
    file.i(1, 4).f(huge, -huge, huge, -huge, huge, 0, 0, 0, huge, 1, 1, 1);
    file.i(4);
    file.i(1, 0).coefficients(1);
    file.i(2, 1, 2).coefficients(1);
    file.i(3, 2, 3, 1).coefficients(1);
    // The largest exponent accepted.
    file.i(4, 3, 1, 2, 3).f(1, 1, 1, 1, 1, 1, 1, 32767);
    const auto objects = TavrinMeshIO::parse(file.bytes());
    ASSERT_TRUE(objects);
    ScriptedPrompts quiet;
    drawEveryWay(*objects);
}

TEST(TavrinMeshIO, FailedSaveLeavesTheOldFileAsItWasAndNoTemporaryFile) {
    // The old file spans several write blocks, so that a write can fail half-way.
    auto big = std::make_shared<Solid3d>();
    big->addPointsArray(std::vector<float>(3 * FileOverwriter::blockSize / 4, 1.5f));
    TempFolder folder;
    const std::string file = folder.file("scene.tvm");
    ASSERT_TRUE(TavrinMeshIO().saveFile({objectWith(big)}, file));
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    const std::vector<uint8_t> old = bytesOf(file);

    using Step = FileOverwriter::Step;
    const auto stepsOfSave = [](const std::string& target) {
        std::vector<Step> steps;
        TavrinMeshIO counting(FileOverwriter([&](Step step) {
            steps.push_back(step);
            return false;
        }));
        EXPECT_TRUE(counting.saveFile(triangleDocument(), target));
        fs::remove(target);
        return steps;
    };
    fs::copy_file(file, folder.file("copy.tvm"));
    const size_t overOld = stepsOfSave(folder.file("copy.tvm")).size();
    ASSERT_GE(overOld, 9u); // the old tail takes several blocks
    const std::vector<Step> fresh = stepsOfSave(folder.file("fresh.tvm"));
    ASSERT_EQ(fresh, (std::vector<Step>{Step::ReadOld, Step::Create, Step::Write, Step::Sync,
                                        Step::Close, Step::Rename}));

    for (size_t failing = 0; failing < overOld; ++failing) {
        size_t asked = 0;
        TavrinMeshIO io(FileOverwriter([&](Step) { return asked++ == failing; }));
        EXPECT_FALSE(io.saveFile(triangleDocument(), file)) << failing;
        EXPECT_EQ(bytesOf(file), old) << failing;
        EXPECT_EQ(folder.entries(), std::vector<fs::path>{file}) << failing;
        if (failing < fresh.size()) {
            asked = 0;
            EXPECT_FALSE(io.saveFile(triangleDocument(), folder.file("new"))) << failing;
            EXPECT_EQ(folder.entries(), std::vector<fs::path>{file}) << failing;
        }
    }

    // Failures of the system itself, and the old file's permissions kept on success.
    TavrinMeshIO io;
    EXPECT_FALSE(io.saveFile({}, folder.file("no such folder/x.tvm")));
    fs::create_directory(folder.file("folder.tvm"));
    EXPECT_FALSE(io.saveFile({}, folder.file("folder.tvm")));
    EXPECT_TRUE(fs::is_directory(folder.file("folder.tvm")));
    ASSERT_TRUE(io.saveFile(triangleDocument(), file));
    EXPECT_EQ(fs::status(file).permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_EQ(fs::file_size(file), old.size());
}
