#include "BenchScenes.h"
#include "qt/QtCanvas.h"
#include "render/BlankCanvas.h"
#include "render/KorvanOpsConsts.h"
#include "render/ViewportRenderer.h"

#include <QPainter>
#include <benchmark/benchmark.h>

namespace {

// A canvas that keeps the polygons drawn on it with the colours and styles in force.
class PolygonRecorder : public BlankCanvas {
public:
    PolygonRecorder() : BlankCanvas(1600, 900) {}
    struct Call {
        std::vector<CanvasPoint> points;
        int fillStyle;
        int drawStyle;
        int32_t foreColor;
        int32_t fillColor;
    };
    void polygon(const std::vector<CanvasPoint>& points) override {
        calls.push_back({points, fillStyle(), drawStyle(), foreColor(), fillColor()});
    }
    std::vector<Call> calls;
};

// The polygons of one isometric 1600 x 900 redraw of the twisted extrusion: mostly small solid
// faces without outline. The canvas is not cleared between redraws: only the polygons count. With
// outline (argument 1) every face is also outlined in its fill colour, which keeps every polygon on
// QPainter and so times the painter's set-up alone.
std::vector<PolygonRecorder::Call> twistedPolygons(bool outline) {
    ViewSpecs view;
    KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewIsometric, view);
    SceneDocument document = BenchScenes::twistedExtrusion();
    PolygonRecorder recorder;
    ViewportRenderer().redrawViewport(recorder, view, document.scene());
    for (auto& call : recorder.calls) {
        if (outline) {
            call.drawStyle = DrawSolid;
            call.foreColor = call.fillColor;
        }
    }
    return recorder.calls;
}

QColor toQColor(int32_t color) {
    return QColor(color % 256, color / 256 % 256, color / 65536);
}

} // namespace

static void BM_PaintTwisted_Korvan(benchmark::State& state) {
    const auto calls = twistedPolygons(state.range(0) != 0);
    QtCanvas canvas(1600, 900);
    for (auto _ : state) {
        for (const auto& call : calls) {
            canvas.setFillStyle(call.fillStyle);
            canvas.setDrawStyle(call.drawStyle);
            canvas.setForeColor(call.foreColor);
            canvas.setFillColor(call.fillColor);
            canvas.polygon(call.points);
        }
        canvas.refresh();
        benchmark::ClobberMemory();
    }
    state.counters["polygons"] = static_cast<double>(calls.size());
}

// The same polygons straight through one QPainter, the least any use of it costs.
static void BM_PaintTwisted_BareQPainter(benchmark::State& state) {
    const auto calls = twistedPolygons(state.range(0) != 0);
    QImage image(1600, 900, QImage::Format_RGB32);
    std::vector<QPoint> corners;
    image.fill(Qt::black);
    for (auto _ : state) {
        QPainter painter(&image);
        for (const auto& call : calls) {
            corners.clear();
            for (const CanvasPoint& p : call.points) {
                corners.emplace_back(p.x, p.y);
            }
            painter.setPen(call.drawStyle == DrawInvisible
                               ? QPen(Qt::NoPen)
                               : QPen(toQColor(call.foreColor), 1, Qt::SolidLine, Qt::FlatCap));
            painter.setBrush(toQColor(call.fillColor));
            painter.drawPolygon(corners.data(), static_cast<int>(corners.size()), Qt::OddEvenFill);
        }
        painter.end();
        benchmark::ClobberMemory();
    }
    state.counters["polygons"] = static_cast<double>(calls.size());
}

BENCHMARK(BM_PaintTwisted_Korvan)
    ->ArgName("outline")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PaintTwisted_BareQPainter)
    ->ArgName("outline")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond);
