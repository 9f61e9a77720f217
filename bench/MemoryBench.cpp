#include "BenchScenes.h"
#include "app/frmTolvane.h"
#include "io/TavrinMeshIO.h"
#include "qt/QtCanvas.h"
#include "qt/QtModalHost.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <malloc.h>
#include <unistd.h>

// What the editor holds per face of an opened mesh file, beyond what it held before: the
// heap in use (small blocks and mapped ones) after File > Open's work, and again after the
// four viewports were redrawn, which is what the editor keeps between redraws.

namespace {

double heapInUse() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

// The twisted star in range(0) subdivisions (512 faces each), saved once, opened by an
// editor in Four Windows at 1600 x 900 that has drawn its start-up document.
void BM_MemoryPerFace(benchmark::State& state) {
    const std::string file = (std::filesystem::temp_directory_path() /
                              ("korvan-memory-" + std::to_string(::getpid()) + ".tvm"))
                                 .string();
    double faces = 0;
    {
        const auto document = BenchScenes::twistedExtrusion(static_cast<int>(state.range(0)));
        faces = document.solids.front()->getSolid()->GetFaceNum();
        TavrinMeshIO().saveFile(document.solids, file);
    }
    std::array<QtCanvas, 4> canvases{QtCanvas(1, 1), QtCanvas(1, 1), QtCanvas(1, 1),
                                     QtCanvas(1, 1)};
    QtModalHost dialogs;
    frmTolvane form(dialogs);
    form.attachCanvases({&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
    form.getViewports().viewportLayout = 4;
    form.Form_Resize(1600, 900);
    form.redrawAllViewports();
    double opened = 0;
    double redrawn = 0;
    for (auto _ : state) {
        const double baseline = heapInUse();
        std::string name = file;
        form.getDocument().solids = TavrinMeshIO().OpenFile(name).value();
        opened = heapInUse() - baseline;
        form.redrawAllViewports();
        redrawn = heapInUse() - baseline;
        form.getDocument().solids.clear();
    }
    std::filesystem::remove(file);
    state.counters["faces"] = faces;
    state.counters["opened_bytes_per_face"] = opened / faces;
    state.counters["redrawn_bytes_per_face"] = redrawn / faces;
}

} // namespace

BENCHMARK(BM_MemoryPerFace)
    ->ArgName("subdivisions")
    ->Arg(100)
    ->Arg(1953)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
