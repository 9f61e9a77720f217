// libFuzzer entry for the STL reader. A refusal is an ordinary end; whatever reads is drawn in
// every display mode, and written back: what StlWriter writes must read back to the same
// bytes.
#include "FuzzDrawing.h"
#include "io/StlReader.h"
#include "io/StlWriter.h"

#include <cstddef>
#include <cstdint>
#include <span>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    FuzzDrawing::silencePrompts();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzDrawing::readDrawAndWriteBack(
        {data, size}, [](std::span<const uint8_t> bytes) { return StlReader::parse(bytes); },
        [](const ObjectList& objects) { return StlWriter::encode(objects, false); });
}
