#include "app/SceneTreeModel.h"
#include "io/TavrinMeshIO.h"
#include "scene/Transformed3d.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// A document of count solids of one triangle each, a scene of many small parts: its time
// goes into the objects and their nodes, not the faces.
ObjectList oneFaceSolids(int count) {
    ObjectList objects;
    for (int i = 0; i < count; ++i) {
        const float x = 0.01f * static_cast<float>(i % 1000);
        const float z = 0.01f * static_cast<float>(i / 1000);
        auto solid = std::make_shared<Solid3d>();
        solid->addPointsArray(std::vector<float>{x, 0, z, x + 0.01f, 0, z, x, 0, z + 0.01f});
        solid->AddFace(std::vector<int32_t>{1, 2, 3});
        auto object = std::make_shared<Transformed3d>();
        object->setSolid(solid);
        objects.push_back(object);
    }
    return objects;
}

// File > Open: reading the file and giving every solid its node, as the editor does; the
// document and tree it replaces are freed outside the timing.
void BM_OpenOneFaceSolids(benchmark::State& state) {
    const fs::path folder =
        fs::temp_directory_path() / ("korvan-open-" + std::to_string(::getpid()));
    fs::create_directories(folder);
    const std::string file = (folder / "solids.tvm").string();
    TavrinMeshIO io;
    if (!io.saveFile(oneFaceSolids(static_cast<int>(state.range(0))), file)) {
        state.SkipWithError("save failed");
    }
    for (auto _ : state) {
        std::string name = file;
        auto tree = std::make_unique<SceneTreeModel>();
        std::optional<ObjectList> solids = io.OpenFile(name);
        if (!solids) {
            state.SkipWithError("open failed");
            break;
        }
        tree->showSolids(*solids);
        benchmark::DoNotOptimize(tree->root().children().size());
        state.PauseTiming();
        tree.reset();
        solids.reset();
        // The allocator merges the freed blocks at the next large request; that too belongs
        // to the freeing.
        void* large = ::operator new(1 << 20);
        benchmark::DoNotOptimize(large);
        ::operator delete(large);
        state.ResumeTiming();
    }
    state.counters["solids"] = benchmark::Counter(
        static_cast<double>(state.iterations() * state.range(0)), benchmark::Counter::kIsRate);
    fs::remove_all(folder);
}
BENCHMARK(BM_OpenOneFaceSolids)->Arg(5000)->Arg(20000)->Arg(100000)->Unit(benchmark::kMillisecond);

} // namespace
