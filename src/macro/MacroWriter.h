#pragma once

#include "macro/MacroAction.h"

#include <ostream>

// Writes actions as macro lines, each flushed as it is written, so that a program that
// stops abruptly leaves every action up to the one that stopped it.
class MacroWriter {
public:
    // Starts the macro with its heading comment.
    explicit MacroWriter(std::ostream& out);
    void write(const MacroAction& action);

private:
    std::ostream& out_;
};
