// libFuzzer entry for the PLY reader. A refusal is an ordinary end; whatever reads is drawn in
// every display mode, and written back: what PlyWriter writes must read back to the same
// bytes.
#include "FuzzDrawing.h"
#include "io/MeshFormatError.h"
#include "io/PlyReader.h"
#include "io/PlyWriter.h"

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
        objects = PlyReader::parse({data, size});
    } catch (const MeshFormatError&) {
        return 0;
    }
    FuzzDrawing::drawEveryWay(objects);
    const std::vector<uint8_t> written = PlyWriter::encode(objects);
    if (PlyWriter::encode(PlyReader::parse(written)) != written) {
        std::abort();
    }
    return 0;
}
