#include "app/SceneDocument.h"
#include "app/SceneTreeModel.h"
#include "scene/Transformed3d.h"

#include <benchmark/benchmark.h>

namespace {

// A 400 x 250 grid of quads: 100,000 faces on 100,651 points.
std::shared_ptr<Transformed3d> hundredThousandFaces() {
    constexpr int columns = 400;
    constexpr int rows = 250;
    auto solid = std::make_shared<Solid3d>();
    std::vector<float> points;
    for (int j = 0; j <= rows; ++j) {
        for (int i = 0; i <= columns; ++i) {
            points.insert(points.end(),
                          {0.01f * static_cast<float>(i), 0, 0.01f * static_cast<float>(j)});
        }
    }
    solid->addPointsArray(points);
    for (int j = 0; j < rows; ++j) {
        for (int i = 0; i < columns; ++i) {
            const int32_t k = j * (columns + 1) + i + 1;
            solid->AddFace(std::vector<int32_t>{k, k + columns + 1, k + columns + 2, k + 1});
        }
    }
    auto object = std::make_shared<Transformed3d>();
    object->setSolid(solid);
    return object;
}

// The node of a new 100,000-face solid, as the extrusion adds it.
void BM_AddSolidNode100k(benchmark::State& state) {
    const auto object = hundredThousandFaces();
    for (auto _ : state) {
        SceneTreeModel tree;
        tree.addSolidNode(object, 1, "Solid");
        benchmark::DoNotOptimize(tree.root().children().size());
    }
}
BENCHMARK(BM_AddSolidNode100k)->Unit(benchmark::kMillisecond);

// Every key press in the tree: all nodes made anew for a document holding that solid.
void BM_RebuildTree100k(benchmark::State& state) {
    SceneDocument document;
    document.solids = {hundredThousandFaces()};
    SceneTreeModel tree;
    for (auto _ : state) {
        tree.rebuildTree(document);
        benchmark::DoNotOptimize(tree.root().children().size());
    }
}
BENCHMARK(BM_RebuildTree100k)->Unit(benchmark::kMillisecond);

// What the user waits for when first opening the "Faces" or "Points" list of that solid.
void BM_ExpandList100k(benchmark::State& state) {
    const auto object = hundredThousandFaces();
    const size_t list = static_cast<size_t>(state.range(0)); // 0 points, 1 faces
    for (auto _ : state) {
        state.PauseTiming();
        SceneTreeModel tree;
        tree.addSolidNode(object, 1, "Solid");
        SceneTreeNode& node = *tree.root().children()[0]->children()[list];
        state.ResumeTiming();
        tree.makeLaterChildren(node);
        benchmark::DoNotOptimize(node.children().size());
        state.PauseTiming();
        tree.removeAllNodes();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_ExpandList100k)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace
