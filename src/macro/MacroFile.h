#pragma once

#include "macro/MacroSyntax.h"
#include "macro/UserSource.h"

#include <string_view>
#include <vector>

// The actions of a macro text, in order.
class MacroFile : public UserSource {
public:
    // Throws MacroSyntax::Error ("line N: ...") for a line that is not an action.
    explicit MacroFile(std::string_view text) : actions_(MacroSyntax::parseAll(text)) {}
    explicit MacroFile(std::vector<MacroSyntax::NumberedAction> actions)
        : actions_(std::move(actions)) {}

    std::optional<MacroAction> next(const Waiting& waiting) override;
    std::string where() const override;

private:
    std::vector<MacroSyntax::NumberedAction> actions_;
    size_t next_ = 0;
    int line_ = 0;
};
