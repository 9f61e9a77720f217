#include "macro/MacroWriter.h"

#include "macro/MacroSyntax.h"

MacroWriter::MacroWriter(std::ostream& out) : out_(out) {
    out_ << "# Korvan macro: one action a line (docs/MACROS.md)" << std::endl;
}

void MacroWriter::write(const MacroAction& action) {
    out_ << MacroSyntax::format(action) << std::endl;
}
