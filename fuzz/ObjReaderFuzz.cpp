// libFuzzer entry for the OBJ reader: the input up to its first NUL byte is the .obj text, the
// rest the text of every material library it names. A refusal is an ordinary end; whatever
// reads is drawn in every display mode, and written back: what ObjWriter writes must read
// back to the same text.
#include "FuzzDrawing.h"
#include "io/MeshFormatError.h"
#include "io/ObjReader.h"
#include "io/ObjWriter.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    FuzzDrawing::silencePrompts();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const size_t split = std::min(input.find('\0'), input.size());
    const std::string library(input.substr(std::min(split + 1, input.size())));
    ObjectList objects;
    try {
        objects = ObjReader::parse(input.substr(0, split),
                                   [&](const std::string&) { return std::optional(library); });
    } catch (const MeshFormatError&) {
        return 0;
    }
    FuzzDrawing::drawEveryWay(objects);
    const ObjWriter::Text written = ObjWriter::encode(objects, "a.mtl");
    const ObjWriter::Text again = ObjWriter::encode(
        ObjReader::parse(written.obj,
                         [&](const std::string&) { return std::optional(written.mtl); }),
        "a.mtl");
    if (again.obj != written.obj || again.mtl != written.mtl) {
        std::abort();
    }
    return 0;
}
