// libFuzzer entry for macros: arbitrary text is played as a macro in the editor without a
// screen. A line that does not fit, or is no action, ends the play, as in a replay; anything
// else that escapes, and every sanitizer report, is a finding.
#include "macro/HeadlessEditor.h"
#include "macro/MacroFile.h"
#include "render/BlankCanvas.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace {

// A folder of the fuzzer's own for every file a macro names: a macro may save, and must not
// write over files elsewhere.
std::string sandboxFolder() {
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("korvan-macro-fuzz-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    return folder.string();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::string folder = sandboxFolder();
    MacroFile macro(std::string(reinterpret_cast<const char*>(data), size));
    std::array<BlankCanvas, 4> canvases;
    HeadlessEditor editor(macro, {&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
    editor.player.setSandbox(folder);
    try {
        editor.player.playAll();
    } catch (const MacroPlayer::Error&) {
    }
    return 0;
}
