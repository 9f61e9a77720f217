// libFuzzer entry for macros: arbitrary text is read as a macro, and whatever reads is played
// in the editor without a screen. A line that does not fit ends the play, as in a replay;
// anything else that escapes, and every sanitizer report, is a finding.
#include "app/EventGuard.h"
#include "macro/BlankCanvas.h"
#include "macro/HeadlessEditor.h"
#include "macro/MacroSyntax.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <unistd.h>
#include <variant>

namespace {

// The actions of the macro, with every file the macro names moved into a folder of the
// fuzzer's own: a macro may save, and must not write over files elsewhere.
class SandboxedMacro : public UserSource {
public:
    SandboxedMacro(std::vector<MacroSyntax::NumberedAction> actions, const std::string& folder)
        : actions_(std::move(actions)) {
        for (auto& numbered : actions_) {
            if (auto* file = std::get_if<macro::File>(&numbered.action);
                file && !file->path.empty()) {
                file->path = folder + "/" +
                             std::to_string(std::hash<std::string>{}(file->path) % 4) +
                             std::filesystem::path(file->path).extension().string();
            }
        }
    }

    std::optional<MacroAction> next(const Waiting& waiting) override {
        if (next_ == actions_.size()) {
            return std::nullopt;
        }
        const MacroAction& action = actions_[next_].action;
        if (waiting.kind == Waiting::Kind::Popup) {
            const auto* menu = std::get_if<macro::Menu>(&action);
            if (menu == nullptr || !menu->popup) {
                return std::nullopt;
            }
        }
        ++next_;
        return action;
    }
    std::string where() const override { return "action " + std::to_string(next_); }

private:
    std::vector<MacroSyntax::NumberedAction> actions_;
    size_t next_ = 0;
};

std::string sandbox() {
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("korvan-macro-fuzz-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    return folder.string();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::string folder = sandbox();
    std::vector<MacroSyntax::NumberedAction> actions;
    try {
        actions = MacroSyntax::parseAll({reinterpret_cast<const char*>(data), size});
    } catch (const MacroSyntax::Error&) {
        return 0;
    }
    SandboxedMacro macro(std::move(actions), folder);
    std::array<BlankCanvas, 4> canvases;
    HeadlessEditor editor(macro, {&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
    try {
        editor.player.playAll();
    } catch (const MacroPlayer::Error&) {
    }
    return 0;
}
