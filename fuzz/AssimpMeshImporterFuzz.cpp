// libFuzzer entry for the import of other programs' mesh files. The first byte chooses the
// format the rest is read as; whatever the importer accepts must have every corner on one of
// its solid's points.
#include "io/AssimpMeshImporter.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::array<const char*, 6> formats{".stl",  ".off", ".obj",
                                                    ".gltf", ".glb", ".3mf"};
    if (size == 0) {
        return 0;
    }
    AssimpMeshImporter importer;
    const auto objects =
        importer.importBytes({data + 1, size - 1}, formats[data[0] % formats.size()]);
    if (objects) {
        for (const auto& object : *objects) {
            const Solid3d& solid = *object->getSolid();
            for (const auto& face : solid.faces) {
                for (const int32_t index : face->getIndices()) {
                    if (index < 1 || index >= solid.getNextPointIndex()) {
                        std::abort();
                    }
                }
            }
        }
    }
    return 0;
}
