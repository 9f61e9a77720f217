#include "support/Monkey.h"
#include "app/EventGuard.h"
#include "io/PosixFileSystem.h"
#include "macro/HeadlessEditor.h"
#include "macro/MacroFile.h"
#include "macro/MacroWriter.h"
#include "render/BlankCanvas.h"
#include "support/DocumentInvariants.h"
#include "support/HistoryInvariants.h"
#include "support/TestScale.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

long fromEnvironment(const char* name, long fallback) {
    const char* value = std::getenv(name);
    return value != nullptr ? std::strtol(value, nullptr, 10) : fallback;
}

// Plays the monkey of one seed in an editor without a screen, checking the document and its
// undo history after every action of the window, then, when asked, replays the macro it played in
// an empty sandbox, though the files it saved are still where it was made. The macro is kept when
// asked, and always when something went wrong (an exception got out, a line did not fit, an
// invariant broke); the failure names it. Each seed saves its files in a folder of its own, which
// it starts empty, so that its macro replays alike in any empty sandbox.
std::string playMonkey(uint64_t seed, long actions, const fs::path& folder, bool keep,
                       bool replay) {
    const fs::path files = folder / ("monkey-" + std::to_string(seed));
    fs::remove_all(files);
    fs::create_directories(files);
    const fs::path macroPath = folder / ("monkey-" + std::to_string(seed) + ".macro");
    std::string failure;
    {
        std::ofstream file(macroPath);
        MacroWriter writer(file);
        Monkey monkey(seed, actions, files.string());
        std::array<BlankCanvas, 4> canvases;
        HeadlessEditor editor(monkey, {&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
        HistoryInvariants history(editor.form);
        editor.player.attach(editor.form, &history);
        editor.player.echoTo(&writer);
        monkey.watch(editor.form);
        try {
            while (failure.empty() && editor.player.step()) {
                std::string broken = brokenInvariant(editor.form);
                broken = broken.empty() ? history.check() : broken;
                failure = broken.empty() ? "" : monkey.where() + ": " + broken;
            }
        } catch (const std::exception& error) {
            failure = error.what();
        } catch (const EventGuard::Stop& stop) {
            failure = stop.message;
        }
    }
    const fs::path sandbox = folder / ("sandbox-" + std::to_string(seed));
    if (failure.empty() && replay) {
        fs::create_directories(sandbox);
        MacroFile macro = MacroFile::open(PosixFileSystem::instance(), macroPath);
        std::array<BlankCanvas, 4> canvases;
        HeadlessEditor editor(macro, {&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
        editor.player.setSandbox(sandbox.string());
        try {
            editor.player.playAll();
        } catch (const MacroPlayer::Error& error) {
            failure = std::string("replayed: ") + error.what();
        }
    }
    fs::remove_all(sandbox);
    if (failure.empty()) {
        if (!keep) {
            fs::remove(macroPath);
            fs::remove_all(files);
        }
        return "";
    }
    return "seed " + std::to_string(seed) + ": " + failure + " (replay with korvan-cli replay " +
           macroPath.string() + " --sandbox EMPTY-FOLDER)";
}

} // namespace

// 10 x 1,000 actions here, the first three seeds replayed (one seed under the sanitizers). A
// long run sets the seeds, the actions per seed, the first seed and a folder that keeps every
// macro: KORVAN_MONKEY_SEEDS=100 KORVAN_MONKEY_ACTIONS=10000 (docs/MACROS.md).
TEST(Monkey, PlaysThousandsOfActionsWithoutBreakingTheDocument) {
    const long seeds = fromEnvironment("KORVAN_MONKEY_SEEDS", TestScale::count(10));
    const long actions = fromEnvironment("KORVAN_MONKEY_ACTIONS", 1000);
    const long first = fromEnvironment("KORVAN_MONKEY_FIRST_SEED", 1);
    const char* keep = std::getenv("KORVAN_MONKEY_DIR");
    const fs::path folder =
        keep != nullptr ? fs::path(keep)
                        : fs::temp_directory_path() / ("korvan-monkey-" + std::to_string(getpid()));
    for (long seed = first; seed < first + seeds; ++seed) {
        EXPECT_EQ(playMonkey(static_cast<uint64_t>(seed), actions, folder, keep != nullptr,
                             seed < first + TestScale::count(3)),
                  "");
    }
    if (keep == nullptr && !HasFailure()) {
        fs::remove_all(folder);
    }
}
