#pragma once

#include "platform/FileSystem.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <system_error>
#include <type_traits>
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
// - a value that the writer refuses (below).
// Faces with fewer than three corners are kept as stored; the renderer skips them.
// Only regular files are read, and never beyond the size they had when opened; the whole
// file is read into memory first.
//
// One rule for both sides, so that whatever is saved can be opened again: every coordinate
// and coefficient is finite (NaN or infinity would poison every later calculation on the
// solid), and every specular exponent lies in the 16-bit range of the program's own setters
// (shading multiplies once per unit of it, so drawing would stall). A document that breaks
// the rule is not saved at all: the save fails with FileError::unstorableValue before the
// file is touched.
class TavrinMeshIO {
public:
    // Works on the system's own files.
    TavrinMeshIO();
    // Works through the given file system; tests pass one that fails on request.
    explicit TavrinMeshIO(FileSystem& system) : system_(system) {}

    // Writes every object's solid over the start of the file; a longer old file keeps its
    // tail behind the new records. False after any failure; the file on disk is then as it
    // was before (see FileOverwriter for the few files written in place).
    bool saveFile(const ObjectList& solids, std::string filename);
    // What saveFile writes to filename (a normalised name): the records, then the tail of a
    // longer old file. Nothing after a failure.
    std::optional<std::vector<uint8_t>> savedContent(const ObjectList& solids,
                                                     const std::string& filename);
    // The objects of the file, or nothing when it cannot be opened or is not a valid mesh
    // file. filename is normalised in place, so that a caller's message can show it.
    std::optional<ObjectList> OpenFile(std::string& filename);
    // As OpenFile, but leaves out the objects that have no faces. They paint nothing, add
    // nothing to the lights' ranges and do not change the order of the others, so a picture
    // of the rest is the same; a file of many empty objects then takes far less memory.
    std::optional<ObjectList> openDrawable(std::string& filename);
    // How many points and faces an object of the file has.
    struct ObjectCounts {
        int32_t points = 0;
        int32_t faces = 0;
    };
    // The counts of every object of the file, checked as OpenFile checks them, without
    // building the objects: a file of many small objects takes far less memory so.
    std::optional<std::vector<ObjectCounts>> countFile(std::string& filename);
    // Why the last saveFile, OpenFile or countFile failed: the system's error, or a FileError.
    std::error_code getLastError() const { return lastError_; }
    std::string getExtension() const { return ".tvm"; }
    // Blanks for every character outside " ".."~", trimmed, ".tvm" appended unless the
    // name already ends in it (case-sensitive).
    static std::string normalizeFileName(const std::string& name);

    // The reader's core, which OpenFile applies to the file's bytes: the objects the bytes
    // hold, or nothing when they are not a valid mesh file. Public for the fuzzer.
    static std::optional<ObjectList> parse(std::span<const uint8_t> bytes);
    // The writer's core: the records of the objects as a file of them alone holds them, or
    // nothing when a value breaks the rule above.
    static std::optional<std::vector<uint8_t>> records(const ObjectList& objects);

private:
    // The objects of the bytes, those without faces only with keepFaceless.
    static std::optional<ObjectList> build(std::span<const uint8_t> bytes, bool keepFaceless);
    // The counts that parse would find, without the objects.
    static std::optional<std::vector<ObjectCounts>> count(std::span<const uint8_t> bytes);
    // Reads the whole file and interprets its bytes (parse or count).
    template <class Interpret>
    std::invoke_result_t<Interpret, std::span<const uint8_t>> readFile(std::string& filename,
                                                                       Interpret interpret);

    FileSystem& system_;
    std::error_code lastError_;
};
