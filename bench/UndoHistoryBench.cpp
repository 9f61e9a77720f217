#include "BenchScenes.h"
#include "app/EditCommands.h"
#include "app/FaceEdit.h"
#include "app/ListChange.h"
#include "app/MemoryBytes.h"
#include "app/SolidEdit.h"
#include "app/frmTolvane.h"
#include "qt/QtModalHost.h"
#include "render/BlankCanvas.h"
#include "scene/Face3d.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int faceEdits = 100;
constexpr int extrusions = 20;

// The editor without a screen, holding one extrusion of a 250-corner polygon swept up in
// 2,000 rings (1,000,002 faces on 502,000 points), and a history of 100 edits of one face's
// coefficients each and 20 extrusions of 400 faces each, an extrusion last. The viewports
// are blank canvases laid out for a 1600 x 900 client area (layout 1), so a redraw costs the
// geometry (transform, cull, clip, face order, shading) without the painting.
class MillionFaceEditor {
public:
    MillionFaceEditor() {
        form.attachCanvases({&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
        Matrix4 up;
        M3Ops::setTranslation(up, 0, 0.001f, 0);
        large = BenchScenes::sweep(BenchScenes::polygon(250, 2.0f), 0, 0, {up}, 2000);
        form.getDocument().solids.push_back(large);
        form.Form_Resize(1600, 900);
        form.rebuildTree();
        UndoHistory& history = form.history();
        const auto faces = large->getFaces();
        Matrix4 small;
        M3Ops::setTranslation(small, 0, 0.02f, 0);
        for (int i = 0; i < faceEdits + extrusions; ++i) {
            // An extrusion after every five face edits.
            if (i % 6 == 5) {
                const float x = -3.0f + 0.3f * static_cast<float>(i / 6);
                history.push(
                    "Extrude",
                    ListChange<Transformed3d>::insert(
                        form.getDocument(),
                        BenchScenes::sweep(BenchScenes::polygon(8, 0.1f), x, 3, {small}, 25), 0));
                continue;
            }
            const auto& face = faces[static_cast<size_t>(i) * 8191 % faces.size()];
            const FaceEdit::Snapshot before = FaceEdit::capture({face});
            face->DiffuseKr = 0.1f + 0.001f * static_cast<float>(i);
            history.push("Face Properties", FaceEdit::since(before));
        }
        form.rebuildTree();
        EditCommands::refresh(form.getMenus(), history);
    }

    // Undo or redo through the Edit menu, as the user chooses it.
    void click(bool back) { form.getMenus().item(back ? "mnuEditUndo" : "mnuEditRedo").click(); }

    std::array<BlankCanvas, 4> canvases;
    QtModalHost dialogs;
    frmTolvane form{dialogs};
    std::shared_ptr<Transformed3d> large;
};

// Built once: the sweep and the history take seconds.
MillionFaceEditor& editor() {
    static MillionFaceEditor instance;
    return instance;
}

// The history's memory against the document's.
void BM_UndoHistoryMemory(benchmark::State& state) {
    MillionFaceEditor& e = editor();
    size_t documentBytes = 0;
    for (auto _ : state) {
        documentBytes = 0;
        for (const auto& object : e.form.getDocument().solids) {
            documentBytes += MemoryBytes::of(*object);
        }
        benchmark::DoNotOptimize(documentBytes);
    }
    const size_t historyBytes = e.form.history().byteSize();
    state.counters["faces"] = static_cast<double>(e.large->getSolid()->GetFaceNum());
    state.counters["steps"] = static_cast<double>(e.form.history().stepCount());
    state.counters["historyBytes"] = static_cast<double>(historyBytes);
    state.counters["documentBytes"] = static_cast<double>(documentBytes);
    state.counters["historyPercent"] =
        100.0 * static_cast<double>(historyBytes) / static_cast<double>(documentBytes);
}
BENCHMARK(BM_UndoHistoryMemory)->Iterations(1);

// What the history would keep of one Solid Properties change of the large solid: every
// face's coefficients changed (its colour), captured before and compared after as the
// command does. Timed: the capture, the change and the comparison. Not pushed, so that the
// history the other benchmarks undo stays as it is.
void BM_UndoSolidEditMemory(benchmark::State& state) {
    MillionFaceEditor& e = editor();
    const auto faces = e.large->getFaces();
    size_t stepBytes = 0;
    for (auto _ : state) {
        const SolidEdit::Snapshot before = SolidEdit::capture(*e.large);
        for (const auto& face : faces) {
            face->DiffuseKg = 0.3f;
        }
        const auto edit = SolidEdit::since(before, false);
        stepBytes = edit->byteSize();
        state.PauseTiming();
        edit->undo(e.form.getDocument());
        state.ResumeTiming();
    }
    const size_t solidBytes = MemoryBytes::of(*e.large);
    state.counters["stepBytes"] = static_cast<double>(stepBytes);
    state.counters["solidBytes"] = static_cast<double>(solidBytes);
    state.counters["stepPercent"] =
        100.0 * static_cast<double>(stepBytes) / static_cast<double>(solidBytes);
}
BENCHMARK(BM_UndoSolidEditMemory)->Unit(benchmark::kMillisecond);

// The capture alone, which Properties takes before the dialog opens, so that even a
// cancelled dialog costs it.
void BM_UndoSolidEditCapture(benchmark::State& state) {
    MillionFaceEditor& e = editor();
    for (auto _ : state) {
        benchmark::DoNotOptimize(SolidEdit::capture(*e.large));
    }
}
BENCHMARK(BM_UndoSolidEditCapture)->Unit(benchmark::kMillisecond);

// One undo (back:1) or redo (back:0) of the newest face edit (step:0) or extrusion (step:1).
// The move the other way, which puts the document back for the next iteration, is not
// timed. part:0 is the history alone; part:1 the history and the tree rebuild, all that an
// undo adds to the redraw (BM_UndoDocumentRedraw) every change makes; part:2 the whole of
// Edit > Undo or Redo chosen in the menu: the history, the tree, every viewport redrawn and
// the menus brought up to date.
void BM_UndoStep(benchmark::State& state) {
    MillionFaceEditor& e = editor();
    const bool faceEdit = state.range(0) == 0;
    const bool back = state.range(1) == 1;
    const int64_t part = state.range(2);
    // The extrusion is the newest step; the face edit is the one before it.
    if (faceEdit) {
        e.click(true);
    }
    const auto move = [&](bool undo) {
        if (part == 2) {
            e.click(undo);
            return;
        }
        undo ? e.form.history().undo(e.form.getDocument())
             : e.form.history().redo(e.form.getDocument());
        if (part == 1) {
            e.form.rebuildTree();
        }
    };
    const std::string name = e.form.history().undoName();
    for (auto _ : state) {
        if (!back) {
            state.PauseTiming();
            move(true);
            state.ResumeTiming();
        }
        move(back);
        benchmark::ClobberMemory();
        if (back) {
            state.PauseTiming();
            move(false);
            state.ResumeTiming();
        }
    }
    if (faceEdit) {
        e.click(false);
    }
    state.SetLabel(name);
}
BENCHMARK(BM_UndoStep)
    ->ArgNames({"step", "back", "part"})
    ->ArgsProduct({{0, 1}, {1, 0}, {0, 1, 2}})
    ->Unit(benchmark::kMillisecond);

// One redraw of all viewports of the same document, as every change redraws it.
void BM_UndoDocumentRedraw(benchmark::State& state) {
    MillionFaceEditor& e = editor();
    for (auto _ : state) {
        e.form.redrawAllViewports();
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_UndoDocumentRedraw)->Unit(benchmark::kMillisecond);

} // namespace
