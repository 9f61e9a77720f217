#pragma once

#include "io/TavrinMeshIO.h"
#include "platform/FileSystem.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>

// Meshes in the formats of other programs, and the program's own, by the file name's
// extension (any case): .tvm, .obj (with its .mtl), .ply and .stl are read; those and .3mf
// are written. Every file is read whole through the bounded reader and written through
// FileOverwriter, so that a failed write leaves no partial file and an old file as it was
// (an .obj and its .mtl are replaced as one).
class MeshFiles {
public:
    enum class Format { Tvm, Obj, Ply, Stl, ThreeMf };

    // A failure: the file at fault (an .obj's library, say), the system's error or a
    // FileError, and for FileError::corrupt what is wrong with the content ("line 3: ...").
    class Error : public std::runtime_error {
    public:
        Error(const std::string& file, std::error_code code, const std::string& detail = "")
            : std::runtime_error(detail), file_(file), code_(code) {}
        const std::string& file() const { return file_; }
        std::error_code code() const { return code_; }

    private:
        std::string file_;
        std::error_code code_;
    };

    explicit MeshFiles(FileSystem& system) : system_(system) {}

    static std::optional<Format> formatOf(const std::string& path);
    // The material library written beside an .obj file: its name with the extension .mtl.
    static std::string libraryOf(const std::string& objPath);

    // Whether open reads the file, by its name: .tvm, .obj and .ply by the program's own
    // readers, which keep a file's points and faces in their order, .stl by StlReader, and
    // the other formats of AssimpMeshImporter (.off, .gltf, .glb, .3mf) through the library.
    static bool isReadable(const std::string& path);
    // The objects of a file isReadable names; throws Error.
    ObjectList open(const std::string& path) const;
    // Writes the objects in the format of the name's extension (.stl in ASCII with ascii);
    // throws Error.
    void save(const ObjectList& objects, const std::string& path, bool ascii) const;

private:
    std::vector<uint8_t> read(const std::string& path) const;

    FileSystem& system_;
};
