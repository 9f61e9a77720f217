#include "macro/MacroFile.h"

std::optional<MacroAction> MacroFile::next(const Waiting& waiting) {
    if (next_ == actions_.size()) {
        return std::nullopt;
    }
    const MacroSyntax::NumberedAction& numbered = actions_[next_];
    if (waiting.kind == Waiting::Kind::Popup) {
        const auto* menu = std::get_if<macro::Menu>(&numbered.action);
        if (menu == nullptr || !menu->popup) {
            return std::nullopt;
        }
    }
    ++next_;
    line_ = numbered.line;
    return numbered.action;
}

std::string MacroFile::where() const {
    return "line " + std::to_string(line_);
}
