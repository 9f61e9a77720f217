#include "app/MemoryBytes.h"
#include "io/MeshFiles.h"
#include "io/PosixFileSystem.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
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

// The process's resident memory in bytes under the key of /proc/self/status ("VmRSS:", or
// "VmHWM:" for its peak), 0 when the system does not say.
double residentBytes(const std::string& key) {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with(key)) {
            return std::strtod(line.c_str() + key.size(), nullptr) * 1024;
        }
    }
    return 0;
}

// Import of the grid through MeshFiles, as File > Import does it: the file read whole, its
// corners joined and the solid built. Besides the time it reports the document's size (its
// MemoryBytes estimate) and the most the resident memory rose above what it was before an
// import while it ran (the peak is reset first; the first import, on fresh memory, gives
// the largest rise), and the ratio of the two.
void BM_ImportMillionTriangleStl(benchmark::State& state) {
    const fs::path folder =
        fs::temp_directory_path() / ("korvan-import-" + std::to_string(::getpid()));
    fs::create_directories(folder);
    const std::string file = (folder / "grid.stl").string();
    writeGridStl(file);
    const MeshFiles files(PosixFileSystem::instance());
    double documentBytes = 0;
    double peakRise = 0;
    for (auto _ : state) {
        state.PauseTiming();
        std::ofstream("/proc/self/clear_refs") << "5"; // the peak starts again from here
        const double before = residentBytes("VmRSS:");
        state.ResumeTiming();
        ObjectList objects;
        try {
            objects = files.open(file);
        } catch (const MeshFiles::Error& error) {
            state.SkipWithError(error.what());
            break;
        }
        state.PauseTiming();
        peakRise = std::max(peakRise, residentBytes("VmHWM:") - before);
        documentBytes = static_cast<double>(MemoryBytes::of(*objects.front()));
        objects = {};
        state.ResumeTiming();
    }
    state.counters["triangles"] = benchmark::Counter(
        static_cast<double>(static_cast<int64_t>(state.iterations()) * triangleCount),
        benchmark::Counter::kIsRate);
    state.counters["documentMiB"] = documentBytes / (1 << 20);
    state.counters["peakRiseMiB"] = peakRise / (1 << 20);
    state.counters["peakPerDocument"] = documentBytes > 0 ? peakRise / documentBytes : 0;
    fs::remove_all(folder);
}
BENCHMARK(BM_ImportMillionTriangleStl)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
