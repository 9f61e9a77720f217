// libFuzzer entry for the profile files of korvan-cli extrude: arbitrary text is read as a
// profile. A refusal is a message and an ordinary end; whatever reads is extruded as the
// command would with its defaults, so that accepted points must also sweep.
#include "cli/CliError.h"
#include "cli/CliOptions.h"
#include "cli/HeadlessExtrusion.h"
#include "cli/ProfileFile.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    try {
        const auto profile =
            ProfileFile::parse({reinterpret_cast<const char*>(data), size}, "fuzz.txt");
        HeadlessExtrusion::run(profile, CliOptions::Extrusion{});
    } catch (const CliError&) {
    }
    return 0;
}
