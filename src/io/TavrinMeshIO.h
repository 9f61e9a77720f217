#pragma once

#include "io/FileOverwriter.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

class Transformed3d;

using ObjectList = std::vector<std::shared_ptr<Transformed3d>>;

// Reads and writes the Tavrin Mesh File (.tvm): the document's solids, their points and
// their faces with surface coefficients, as little-endian 4-byte values with no header.
//
// What a read accepts: the records that the counts announce, in full; whatever follows the
// last object is ignored (a longer file saved over keeps its old tail). An objectCount of 0
// or below is an empty document. Rejected as corrupt:
// - a file that ends early, an empty file included;
// - a negative point, face or index count, or one that the bytes left cannot hold;
// - a point index of 0 or beyond its object's point count;
// - a coordinate or coefficient that is NaN or infinite (it would poison every later
//   calculation on the solid);
// - a specular exponent beyond the 16-bit range, which the program's own setters never
//   leave (shading multiplies once per unit of it, so drawing would stall).
// Faces with fewer than three corners are kept as stored; the renderer skips them.
// The whole file is read into memory first; there is no size limit beyond that memory.
class TavrinMeshIO {
public:
    TavrinMeshIO() = default;
    // Saves through the given overwriter; tests pass one that fails on request.
    explicit TavrinMeshIO(FileOverwriter overwriter) : overwriter_(std::move(overwriter)) {}

    // Writes every object's solid. False after any failure; the file on disk is then
    // exactly as it was before.
    bool saveFile(const ObjectList& solids, std::string filename);
    // The objects of the file, or nothing when it cannot be opened or is not a valid mesh
    // file. filename is normalised in place, so that a caller's message can show it.
    std::optional<ObjectList> OpenFile(std::string& filename);
    std::string getExtension() const { return ".tvm"; }
    // Blanks for every character outside " ".."~", trimmed, ".tvm" appended unless the
    // name already ends in it (case-sensitive).
    static std::string normalizeFileName(const std::string& name);

    // The reader's core, which OpenFile applies to the file's bytes: the objects the bytes
    // hold, or nothing when they are not a valid mesh file. Public for the fuzzer.
    static std::optional<ObjectList> parse(std::span<const uint8_t> bytes);

private:
    // Replaces the file in one step, so that a failed save leaves the old file as it was.
    FileOverwriter overwriter_;
};
