// libFuzzer entry for the PLY reader. A refusal is an ordinary end; whatever reads is drawn in
// every display mode, and written back: what PlyWriter writes must read back to the same
// bytes.
#include "FuzzDrawing.h"
#include "io/PlyReader.h"
#include "io/PlyWriter.h"

#include <cstddef>
#include <cstdint>
#include <span>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    FuzzDrawing::silencePrompts();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzDrawing::readDrawAndWriteBack(
        {data, size}, [](std::span<const uint8_t> bytes) { return PlyReader::parse(bytes); },
        [](const ObjectList& objects) { return PlyWriter::encode(objects); });
}
