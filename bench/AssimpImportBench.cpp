#include "io/AssimpMeshImporter.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"

#include <benchmark/benchmark.h>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// A binary STL of a million triangles: a 1000 x 500 grid of quads split in two, each
// triangle with its own three corners as STL stores them (about 50 MB).
constexpr int columns = 1000;
constexpr int rows = 500;
constexpr int64_t triangleCount = int64_t{columns} * rows * 2;

void writeGridStl(const std::string& file) {
    std::ofstream out(file, std::ios::binary);
    const char header[80] = "korvan benchmark grid";
    out.write(header, sizeof header);
    const auto count = static_cast<uint32_t>(triangleCount);
    out.write(reinterpret_cast<const char*>(&count), sizeof count);
    const auto facet = [&](std::initializer_list<float> corners) {
        float values[12] = {0, 0, 1};
        std::copy(corners.begin(), corners.end(), values + 3);
        out.write(reinterpret_cast<const char*>(values), sizeof values);
        out.write("\0\0", 2);
    };
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < columns; ++c) {
            const float x0 = c * 0.01f;
            const float x1 = (c + 1) * 0.01f;
            const float y0 = r * 0.01f;
            const float y1 = (r + 1) * 0.01f;
            facet({x0, y0, 0, x1, y0, 0, x1, y1, 0});
            facet({x0, y0, 0, x1, y1, 0, x0, y1, 0});
        }
    }
}

// Import of the grid: the library's read, then the solid with its corners joined.
void BM_ImportMillionTriangleStl(benchmark::State& state) {
    const fs::path folder =
        fs::temp_directory_path() / ("korvan-import-" + std::to_string(::getpid()));
    fs::create_directories(folder);
    const std::string file = (folder / "grid.stl").string();
    writeGridStl(file);
    AssimpMeshImporter importer;
    for (auto _ : state) {
        const auto objects = importer.importFile(file);
        if (!objects) {
            state.SkipWithError(importer.lastError().c_str());
            break;
        }
        benchmark::DoNotOptimize(objects->front()->getSolid()->GetFaceNum());
    }
    state.counters["triangles"] = benchmark::Counter(
        static_cast<double>(static_cast<int64_t>(state.iterations()) * triangleCount),
        benchmark::Counter::kIsRate);
    fs::remove_all(folder);
}
BENCHMARK(BM_ImportMillionTriangleStl)->Unit(benchmark::kMillisecond);

} // namespace
