#include "io/FileBytes.h"
#include "io/MeshFiles.h"
#include "io/PosixFileSystem.h"
#include "io/TavrinMeshIO.h"
#include "scene/Transformed3d.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// About a million faces: 10 objects, each a 250 x 200 grid of quads split into triangles
// (100,000 triangles on 50,451 points), about 58 MB on disk.
constexpr int objectCount = 10;
constexpr int columns = 250;
constexpr int rows = 200;
constexpr int64_t faceCount = int64_t{objectCount} * columns * rows * 2;

ObjectList millionFaces() {
    ObjectList objects;
    for (int o = 0; o < objectCount; ++o) {
        auto solid = std::make_shared<Solid3d>();
        std::vector<float> points;
        for (int r = 0; r <= rows; ++r) {
            for (int c = 0; c <= columns; ++c) {
                points.insert(points.end(), {c * 0.01f, 0.1f * static_cast<float>(o), r * 0.01f});
            }
        }
        solid->addPointsArray(points);
        const auto at = [](int r, int c) { return r * (columns + 1) + c + 1; };
        for (int r = 0; r < rows; ++r) {
            for (int c = 0; c < columns; ++c) {
                solid->AddFace(std::vector<int32_t>{at(r, c), at(r + 1, c), at(r + 1, c + 1)});
                solid->AddFace(std::vector<int32_t>{at(r, c), at(r + 1, c + 1), at(r, c + 1)});
            }
        }
        auto object = std::make_shared<Transformed3d>();
        object->setSolid(solid);
        object->SetDiffuseCoefficients(0.5f, 0.75f, 1);
        objects.push_back(object);
    }
    return objects;
}

// A folder of its own in the system's temporary folder, removed afterwards.
struct BenchFolder {
    fs::path folder = fs::temp_directory_path() / ("korvan-meshio-" + std::to_string(::getpid()));
    std::string file = (folder / "million.tvm").string();
    BenchFolder() { fs::create_directories(folder); }
    ~BenchFolder() { fs::remove_all(folder); }
};

void reportFigures(benchmark::State& state, uintmax_t fileBytes) {
    const auto iterations = static_cast<int64_t>(state.iterations());
    state.SetBytesProcessed(iterations * static_cast<int64_t>(fileBytes));
    state.counters["faces"] = benchmark::Counter(static_cast<double>(iterations * faceCount),
                                                 benchmark::Counter::kIsRate);
}

} // namespace

// Saving over the previous save, as a repeated Save does: encode, write a temporary file,
// flush it to the disk, rename it over the old one.
static void BM_MeshSave(benchmark::State& state) {
    const ObjectList document = millionFaces();
    BenchFolder folder;
    TavrinMeshIO io;
    for (auto _ : state) {
        if (!io.saveFile(document, folder.file)) {
            state.SkipWithError("save failed");
            break;
        }
    }
    reportFigures(state, fs::file_size(folder.file));
}

// Reading the file and building the objects; freeing them is not counted.
static void BM_MeshLoad(benchmark::State& state) {
    BenchFolder folder;
    TavrinMeshIO io;
    io.saveFile(millionFaces(), folder.file);
    for (auto _ : state) {
        std::string name = folder.file;
        std::optional<ObjectList> loaded = io.OpenFile(name);
        if (!loaded) {
            state.SkipWithError("load failed");
            break;
        }
        state.PauseTiming();
        loaded.reset();
        state.ResumeTiming();
    }
    reportFigures(state, fs::file_size(folder.file));
}

// Building the objects from bytes already in memory: the load without the file.
static void BM_MeshParse(benchmark::State& state) {
    BenchFolder folder;
    TavrinMeshIO().saveFile(millionFaces(), folder.file);
    std::vector<uint8_t> bytes;
    if (FileBytes::read(PosixFileSystem::instance(), folder.file, 0, bytes)) {
        state.SkipWithError("read failed");
        return;
    }
    for (auto _ : state) {
        std::optional<ObjectList> loaded = TavrinMeshIO::parse(bytes);
        state.PauseTiming();
        loaded.reset();
        state.ResumeTiming();
    }
    reportFigures(state, bytes.size());
}

BENCHMARK(BM_MeshSave)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_MeshLoad)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_MeshParse)->Unit(benchmark::kMillisecond)->UseRealTime();

// The same document in the formats of other programs, through MeshFiles as korvan-cli convert
// uses it: writing each (an .obj with its .mtl, as one), reading .obj and .ply back.
static const char* const meshNames[] = {"million.obj", "million.ply", "million.stl"};

static void BM_MeshExport(benchmark::State& state) {
    const ObjectList document = millionFaces();
    BenchFolder folder;
    const std::string file = (folder.folder / meshNames[state.range(0)]).string();
    const MeshFiles files(PosixFileSystem::instance());
    for (auto _ : state) {
        try {
            files.save(document, file, false);
        } catch (const MeshFiles::Error&) {
            state.SkipWithError("export failed");
            break;
        }
    }
    state.SetLabel(meshNames[state.range(0)]);
    reportFigures(state, fs::file_size(file));
}

static void BM_MeshImport(benchmark::State& state) {
    BenchFolder folder;
    const std::string file = (folder.folder / meshNames[state.range(0)]).string();
    const MeshFiles files(PosixFileSystem::instance());
    files.save(millionFaces(), file, false);
    for (auto _ : state) {
        ObjectList loaded;
        try {
            loaded = files.open(file);
        } catch (const MeshFiles::Error&) {
            state.SkipWithError("import failed");
            break;
        }
        state.PauseTiming();
        loaded = {};
        state.ResumeTiming();
    }
    state.SetLabel(meshNames[state.range(0)]);
    reportFigures(state, fs::file_size(file));
}

BENCHMARK(BM_MeshExport)->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_MeshImport)->DenseRange(0, 1)->Unit(benchmark::kMillisecond)->UseRealTime();
