// libFuzzer entry for the STL reader. A refusal is an ordinary end; whatever reads is drawn in
// every display mode, and written back: what StlWriter writes must read back to the same
// bytes.
#include "FuzzDrawing.h"
#include "io/MeshFormatError.h"
#include "io/StlReader.h"
#include "io/StlWriter.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    FuzzDrawing::silencePrompts();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ObjectList objects;
    try {
        objects = StlReader::parse({data, size});
    } catch (const MeshFormatError&) {
        return 0;
    }
    FuzzDrawing::drawEveryWay(objects);
    const std::vector<uint8_t> written = StlWriter::encode(objects, false);
    if (StlWriter::encode(StlReader::parse(written), false) != written) {
        std::abort();
    }
    return 0;
}
