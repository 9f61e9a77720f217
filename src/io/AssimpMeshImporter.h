#pragma once

#include "io/TavrinMeshIO.h"
#include "platform/FileSystem.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>

struct aiScene;
namespace Assimp {
class Importer;
}

// Reads the mesh files of other programs (STL, OFF, OBJ, glTF 2.0 and 3MF) into scene
// objects through the Open Asset Import Library.
//
// Each object of the file becomes one solid: a node of the file's scene with the meshes it
// holds (a glTF mesh, an OBJ "o" group, a whole STL or OFF file), all of them in one solid
// whatever materials their faces use. Node transformations are applied to the points, and a
// mirroring one reverses the corners so that faces still wind outward.
// - Polygons keep their corners: a face of five corners stays one face of five corners,
//   listed in the file's order. Points and lines of the file are left out.
// - Points: a mesh in which no two faces share a corner has nothing to keep (STL has no list
//   of points, and the library hands some formats over with a copy of each point per
//   corner), so identical corners are joined into one point, in the order they first
//   appear. Otherwise the meshes' point lists are kept as they are, one after the other.
// - Surface coefficients come from each face's material: diffuse colour to the diffuse
//   coefficients, ambient colour to the ambient ones, the mean of the specular colour's
//   channels (times the shininess strength) to SpecularK, the shininess rounded to
//   SpecularN; each clamped to the range of the face dialog's controls (0 to 1, 0 to 100).
//   What a material does not say, or a file without materials, gives the values of an
//   extrusion's unticked groups: 0.5 for each colour channel and SpecularK, 50 for SpecularN.
//
// Bounded: files above maxFileBytes, and scenes above maxFaces faces or maxCorners points or
// corners (counting every use of a mesh), are refused before anything is built, and so is a point
// that is not a finite number. A refusal or a file the library cannot read leaves one line
// saying why in lastError().
class AssimpMeshImporter {
public:
    static constexpr uint64_t maxFileBytes = uint64_t{1} << 30;
    static constexpr uint64_t maxFaces = 20'000'000;
    static constexpr uint64_t maxCorners = 80'000'000;
    static constexpr unsigned maxReadSeconds = 30;
    static constexpr uint64_t maxReadBytes = uint64_t{8} << 30;

    // Works on the system's own files.
    AssimpMeshImporter();
    // Works through the given file system; tests pass one that fails on request.
    explicit AssimpMeshImporter(FileSystem& system) : system_(system) {}

    // Whether the file name's extension is one of a format this importer reads (".stl",
    // ".off", ".obj", ".gltf", ".glb", ".3mf"; case ignored).
    static bool importsExtension(const std::string& filename);

    // The objects of the file, or nothing after a failure (see lastError). Files the file
    // refers to (an OBJ's material library, a glTF's buffers) are read beside it.
    std::optional<ObjectList> importFile(const std::string& filename);
    // The objects of a file's bytes, read as the format of the extension (".stl"); nothing
    // after a failure. Public for the fuzzer.
    std::optional<ObjectList> importBytes(std::span<const uint8_t> bytes,
                                          const std::string& extension);
    // Why the last import failed, one line.
    const std::string& lastError() const { return lastError_; }

private:
    std::optional<ObjectList> fail(const std::string& reason);
    // Reads with the library in a child process, which sends the solids back as the records
    // of a mesh file: a crash of the library on a corrupt file, or a read that runs past
    // maxReadSeconds or takes maxReadBytes more memory than the program had, ends the child
    // and fails the import, nothing else.
    std::optional<ObjectList>
    readApart(const std::function<const aiScene*(Assimp::Importer&)>& read);

    FileSystem& system_;
    std::string lastError_;
};
