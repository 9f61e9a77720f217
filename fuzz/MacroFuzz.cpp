// libFuzzer entry for macros: arbitrary text is read as a macro, and whatever reads is played
// in the editor without a screen. A line that does not fit ends the play, as in a replay;
// anything else that escapes, and every sanitizer report, is a finding.
#include "macro/BlankCanvas.h"
#include "macro/HeadlessEditor.h"
#include "macro/MacroFile.h"
#include "macro/MacroSyntax.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <unistd.h>
#include <variant>
#include <vector>

namespace {

// Moves every file the macro names into a folder of the fuzzer's own: a macro may save, and
// must not write over files elsewhere.
void sandbox(std::vector<MacroSyntax::NumberedAction>& actions, const std::string& folder) {
    for (auto& numbered : actions) {
        if (auto* file = std::get_if<macro::File>(&numbered.action); file && !file->path.empty()) {
            file->path = folder + "/" + std::to_string(std::hash<std::string>{}(file->path) % 4) +
                         std::filesystem::path(file->path).extension().string();
        }
    }
}

std::string sandboxFolder() {
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("korvan-macro-fuzz-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    return folder.string();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::string folder = sandboxFolder();
    std::vector<MacroSyntax::NumberedAction> actions;
    try {
        actions = MacroSyntax::parseAll({reinterpret_cast<const char*>(data), size});
    } catch (const MacroSyntax::Error&) {
        return 0;
    }
    sandbox(actions, folder);
    MacroFile macro(std::move(actions));
    std::array<BlankCanvas, 4> canvases;
    HeadlessEditor editor(macro, {&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
    try {
        editor.player.playAll();
    } catch (const MacroPlayer::Error&) {
    }
    return 0;
}
