// libFuzzer entry for the mesh file reader. Whatever the reader accepts is also drawn, in
// every display mode, since accepted data must never make the renderer read out of bounds
// or stall.
#include "FuzzDrawing.h"
#include "io/TavrinMeshIO.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    FuzzDrawing::silencePrompts();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (const auto objects = TavrinMeshIO::parse({data, size})) {
        FuzzDrawing::drawEveryWay(*objects);
    }
    return 0;
}
