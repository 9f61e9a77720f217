#include "../tests/support/LiteralFaceOrder.h"
#include "../tests/support/LiteralRedraw.h"
#include "BenchScenes.h"
#include "app/frmTolvane.h"
#include "qt/QtCanvas.h"
#include "qt/QtModalHost.h"
#include "scene/FaceOrder.h"

#include <benchmark/benchmark.h>
#include <ctime>

namespace {

// Reports the CPU time of all the process's threads per iteration as "cpuBoth", in
// milliseconds (the CPU column counts the main thread only).
class BothCoresTime {
public:
    explicit BothCoresTime(benchmark::State& state) : state_(state), start_(now()) {}
    ~BothCoresTime() {
        state_.counters["cpuBoth"] =
            benchmark::Counter(now() - start_, benchmark::Counter::kAvgIterations);
    }
    BothCoresTime(const BothCoresTime&) = delete;
    BothCoresTime& operator=(const BothCoresTime&) = delete;

private:
    static double now() {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }
    benchmark::State& state_;
    double start_;
};

// The main window for a 1600 x 900 client area, painting into Qt canvases, with the document
// and the layout given.
struct Editor {
    std::array<QtCanvas, 4> canvases{QtCanvas(1, 1), QtCanvas(1, 1), QtCanvas(1, 1),
                                     QtCanvas(1, 1)};
    QtModalHost dialogs;
    frmTolvane form{dialogs};

    Editor(const SceneDocument& document, int layout) {
        form.attachCanvases({&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
        form.getDocument().solids = document.solids;
        form.getViewports().viewportLayout = layout;
        form.Form_Resize(1600, 900);
    }
    // Turns every view a little, as the torus benchmark does, so that no kept picture can
    // answer: eight steps and back.
    void turnViews(int64_t iteration) {
        for (int number = 1; number <= 4; ++number) {
            form.getViewports().viewSpecs(number).EyeTheta +=
                (iteration / 8) % 2 == 0 ? 0.0175f : -0.0175f;
        }
    }
};

// The full redraw every change of the document costs: the program's, and the plain one
// (the viewports one after the other, each in the document, with the plain face order).
void redrawAll(benchmark::State& state, const SceneDocument& document, bool literal) {
    Editor editor(document, static_cast<int>(state.range(0)));
    ViewportSet& viewports = editor.form.getViewports();
    int64_t iteration = 0;
    const BothCoresTime cpu(state);
    for (auto _ : state) {
        editor.turnViews(iteration++);
        if (!literal) {
            editor.form.redrawAllViewports();
            continue;
        }
        ViewportScene scene = editor.form.getDocument().scene();
        for (int i = 0; i < 4; ++i) {
            Canvas& canvas = *viewports.canvas(i);
            if (canvas.isVisible()) {
                LiteralRedraw::redrawViewport(canvas, viewports.viewSpecs(i + 1), scene);
            } else {
                LiteralRedraw::project(canvas, viewports.viewSpecs(i + 1), scene);
            }
        }
        benchmark::ClobberMemory();
    }
}

} // namespace

static void BM_RedrawAll_StartUp(benchmark::State& state) {
    redrawAll(state, SceneDocument::startUp(), false);
}
static void BM_RedrawAll_20Prisms(benchmark::State& state) {
    redrawAll(state, BenchScenes::twentyPrisms(), false);
}
static void BM_RedrawAllTwisted_Literal(benchmark::State& state) {
    FaceOrder::sorterInUse = [](const FaceOrder::Faces& faces) { return literalSortFaces(faces); };
    redrawAll(state, BenchScenes::twistedExtrusion(), true);
    FaceOrder::sorterInUse = &FaceOrder::sort;
}
static void BM_RedrawAllTwisted_Fast(benchmark::State& state) {
    redrawAll(state, BenchScenes::twistedExtrusion(), false);
}
// The plain redraw with the program's face order: what the kept buffers, the parallel views
// and the leaner faces are worth beside the order.
static void BM_RedrawAllTwisted_Serial(benchmark::State& state) {
    redrawAll(state, BenchScenes::twistedExtrusion(), true);
}
// A mouse move without a button over the isometric viewport: the views stay, so the kept
// pictures answer.
static void BM_HoverTwisted(benchmark::State& state) {
    Editor editor(BenchScenes::twistedExtrusion(), static_cast<int>(state.range(0)));
    float x = 0;
    for (auto _ : state) {
        x = x > 300 ? 0 : x + 1;
        editor.form.picOrtho_MouseMove(3, 0, 0, 100 + x, 100);
    }
}
// One step of a rotate drag in the isometric viewport, drawn with the depth buffer while
// the button is held, its view turning every step.
static void BM_DragStepTwisted(benchmark::State& state) {
    Editor editor(BenchScenes::twistedExtrusion(), static_cast<int>(state.range(0)));
    editor.form.enableDragPictures(true);
    editor.form.picOrtho_MouseDown(3, 1, 0, 100, 100);
    int64_t iteration = 0;
    const BothCoresTime cpu(state);
    for (auto _ : state) {
        const float dx = (iteration++ / 8) % 2 == 0 ? 2.0f : -2.0f;
        editor.form.picOrtho_MouseMove(3, 1, 0, 100 + dx * static_cast<float>(iteration % 8), 100);
    }
}
// All views at rest with the depth-buffered option, turning every iteration.
static void BM_DepthBufferTwisted(benchmark::State& state) {
    Editor editor(BenchScenes::twistedExtrusion(), static_cast<int>(state.range(0)));
    editor.form.getMenus().item("mnuDepthBufferedPictures").setChecked(true);
    int64_t iteration = 0;
    const BothCoresTime cpu(state);
    for (auto _ : state) {
        editor.turnViews(iteration++);
        editor.form.redrawAllViewports();
    }
}
BENCHMARK(BM_RedrawAll_StartUp)->ArgName("layout")->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RedrawAll_20Prisms)->ArgName("layout")->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RedrawAllTwisted_Literal)
    ->ArgName("layout")
    ->Arg(1)
    ->Arg(4)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RedrawAllTwisted_Serial)->ArgName("layout")->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RedrawAllTwisted_Fast)
    ->ArgName("layout")
    ->Arg(1)
    ->Arg(4)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(BM_HoverTwisted)->ArgName("layout")->Arg(4)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_DragStepTwisted)
    ->ArgName("layout")
    ->Arg(4)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(BM_DepthBufferTwisted)
    ->ArgName("layout")
    ->Arg(4)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
