#include "render/KorvanOpsConsts.h"

#include "platform/Canvas.h"

#include <benchmark/benchmark.h>

namespace {

// Only the size matters for the matrices.
class SizedCanvas : public Canvas {
public:
    int scaleWidth() const override { return 1600; }
    int scaleHeight() const override { return 900; }
    void polygon(const std::vector<CanvasPoint>&) override {}
    void moveTo(int, int) override {}
    void lineTo(int, int) override {}
    void textOut(int, int, const std::string&) override {}
    void clear() override {}
    void refresh() override {}
    void stretchBlitOr(const Bitmap&, int, int, int, int, int, int, int, int) override {}
};

} // namespace

// The cost of building the matrix that maps world points onto a viewport's canvas,
// paid once per viewport per redraw.
static void BM_FullViewMatrix(benchmark::State& state) {
    SizedCanvas canvas;
    ViewSpecs view;
    KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewIsometric, view);
    for (auto _ : state) {
        view.EyeTheta += 1e-6f;
        benchmark::DoNotOptimize(KorvanOpsConsts::getFullViewMatrix(canvas, view));
    }
}
BENCHMARK(BM_FullViewMatrix);
