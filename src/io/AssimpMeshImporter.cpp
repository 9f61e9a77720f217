#include "io/AssimpMeshImporter.h"

#include "geometry/Rounding.h"
#include "io/PosixFileSystem.h"
#include "scene/Face3d.h"
#include "scene/FaceCoefficients.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"

#include <algorithm>
#include <array>
#include <assimp/BaseImporter.h>
#include <assimp/Importer.hpp>
#include <assimp/config.h>
#include <assimp/importerdesc.h>
#include <assimp/material.h>
#include <assimp/scene.h>
#include <bit>
#include <cctype>
#include <cerrno>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <memory>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <unordered_map>
#include <vector>

namespace {

// What a material does not say.
constexpr float defaultCoefficient = FaceCoefficients::unsaid[0];
constexpr float defaultExponent = FaceCoefficients::unsaid[7];
// The face dialog's specular exponent bar.
constexpr float maxExponent = 100;

struct Surface {
    std::array<float, 3> ambient{defaultCoefficient, defaultCoefficient, defaultCoefficient};
    std::array<float, 3> diffuse{defaultCoefficient, defaultCoefficient, defaultCoefficient};
    float specularK = defaultCoefficient;
    float specularN = defaultExponent;
};

// The colour under the key, when the material has one with finite channels.
std::optional<aiColor4D> colourOf(const aiMaterial& material, const char* key, unsigned type,
                                  unsigned index) {
    aiColor4D colour;
    if (material.Get(key, type, index, colour) != AI_SUCCESS || !std::isfinite(colour.r) ||
        !std::isfinite(colour.g) || !std::isfinite(colour.b)) {
        return std::nullopt;
    }
    return colour;
}

float unit(float value) {
    return std::clamp(value, 0.0f, 1.0f);
}

void setColour(const std::optional<aiColor4D>& colour, std::array<float, 3>& channels) {
    if (colour) {
        channels = {unit(colour->r), unit(colour->g), unit(colour->b)};
    }
}

Surface surfaceOf(const aiMaterial* material) {
    Surface surface;
    aiString name;
    // The library gives files without materials one of its own, which says nothing.
    if (material == nullptr || (material->Get(AI_MATKEY_NAME, name) == AI_SUCCESS &&
                                std::strcmp(name.C_Str(), AI_DEFAULT_MATERIAL_NAME) == 0)) {
        return surface;
    }
    setColour(colourOf(*material, AI_MATKEY_COLOR_DIFFUSE), surface.diffuse);
    setColour(colourOf(*material, AI_MATKEY_COLOR_AMBIENT), surface.ambient);
    if (const auto specular = colourOf(*material, AI_MATKEY_COLOR_SPECULAR)) {
        float strength = 1;
        if (material->Get(AI_MATKEY_SHININESS_STRENGTH, strength) != AI_SUCCESS ||
            !std::isfinite(strength)) {
            strength = 1;
        }
        surface.specularK = unit((specular->r + specular->g + specular->b) / 3 * strength);
    }
    float shininess;
    if (material->Get(AI_MATKEY_SHININESS, shininess) == AI_SUCCESS && std::isfinite(shininess)) {
        surface.specularN =
            static_cast<float>(Rounding::toInt32(std::clamp(shininess, 0.0f, maxExponent)));
    }
    return surface;
}

// A node of the scene that holds meshes, with its transformation to the scene's root.
struct PlacedNode {
    const aiNode* node;
    aiMatrix4x4 transform;
};

// The nodes with meshes, in the file's order (parents before children), walked without
// recursion so that a deep tree cannot exhaust the stack.
std::vector<PlacedNode> nodesWithMeshes(const aiNode* root) {
    std::vector<PlacedNode> placed;
    std::vector<PlacedNode> pending{{root, root->mTransformation}};
    while (!pending.empty()) {
        const PlacedNode next = pending.back();
        pending.pop_back();
        if (next.node->mNumMeshes > 0) {
            placed.push_back(next);
        }
        for (unsigned i = next.node->mNumChildren; i-- > 0;) {
            const aiNode* child = next.node->mChildren[i];
            if (child != nullptr) {
                pending.push_back({child, next.transform * child->mTransformation});
            }
        }
    }
    return placed;
}

// The library's message as one line of at most maxMessage characters; some quote the
// whole rest of the file.
std::string oneLine(const char* text) {
    constexpr size_t maxMessage = 160;
    if (std::strcmp(text, "std::bad_alloc") == 0) {
        return "not enough memory to read the file";
    }
    std::string line;
    for (const char* c = text; *c != '\0'; ++c) {
        line += std::iscntrl(static_cast<unsigned char>(*c)) ? ' ' : *c;
    }
    const size_t end = line.find_last_not_of(' ');
    line.resize(end == std::string::npos ? 0 : end + 1);
    return line.size() > maxMessage ? line.substr(0, maxMessage - 3) + "..." : line;
}

// Builds the solid of one node; throws std::runtime_error with the reason of a refusal.
class SolidBuilder {
public:
    SolidBuilder(const aiScene& scene, const PlacedNode& placed)
        : scene_(scene), placed_(placed), mirrored_(placed.transform.Determinant() < 0) {}

    // The node's solid, or none when its meshes hold no polygons.
    std::shared_ptr<Transformed3d> build() {
        const bool join = !sharesCorners();
        if (join) {
            // At most one point per corner: no rehashing on the way.
            size_t corners = 0;
            for (unsigned m = 0; m < placed_.node->mNumMeshes; ++m) {
                corners += meshAt(m).mNumVertices;
            }
            points_.reserve(corners);
        }
        for (unsigned m = 0; m < placed_.node->mNumMeshes; ++m) {
            const aiMesh& mesh = meshAt(m);
            const auto firstPoint = static_cast<int32_t>(coordinates_.size() / 3) + 1;
            if (!join) {
                for (unsigned v = 0; v < mesh.mNumVertices; ++v) {
                    addPoint(mesh.mVertices[v]);
                }
            }
            const aiMaterial* material = mesh.mMaterialIndex < scene_.mNumMaterials
                                             ? scene_.mMaterials[mesh.mMaterialIndex]
                                             : nullptr;
            const Surface surface = surfaceOf(material);
            for (unsigned f = 0; f < mesh.mNumFaces; ++f) {
                const aiFace& face = mesh.mFaces[f];
                if (face.mNumIndices < 3) {
                    continue;
                }
                std::vector<int32_t> corners;
                corners.reserve(face.mNumIndices);
                for (unsigned c = 0; c < face.mNumIndices; ++c) {
                    const unsigned vertex = face.mIndices[c];
                    corners.push_back(join ? joinedPoint(mesh.mVertices[vertex])
                                           : firstPoint + static_cast<int32_t>(vertex));
                }
                if (mirrored_) {
                    std::reverse(corners.begin(), corners.end());
                }
                faces_.push_back({std::move(corners), surface});
            }
        }
        if (faces_.empty()) {
            return nullptr;
        }
        auto solid = std::make_shared<Solid3d>();
        solid->addPointsArray(coordinates_);
        solid->faces.reserve(faces_.size());
        for (const auto& [corners, surface] : faces_) {
            const auto face = solid->AddFaceArray(corners);
            face->AmbientKr = surface.ambient[0];
            face->AmbientKg = surface.ambient[1];
            face->AmbientKb = surface.ambient[2];
            face->DiffuseKr = surface.diffuse[0];
            face->DiffuseKg = surface.diffuse[1];
            face->DiffuseKb = surface.diffuse[2];
            face->SpecularK = surface.specularK;
            face->SpecularN = surface.specularN;
        }
        auto object = std::make_shared<Transformed3d>();
        object->setSolid(solid);
        return object;
    }

private:
    const aiMesh& meshAt(unsigned i) const { return *scene_.mMeshes[placed_.node->mMeshes[i]]; }

    // Whether a point of a mesh is a corner of two faces; checks every corner's index.
    bool sharesCorners() const {
        bool shared = false;
        for (unsigned m = 0; m < placed_.node->mNumMeshes; ++m) {
            const aiMesh& mesh = meshAt(m);
            std::vector<bool> used(mesh.mNumVertices);
            for (unsigned f = 0; f < mesh.mNumFaces; ++f) {
                const aiFace& face = mesh.mFaces[f];
                for (unsigned c = 0; c < face.mNumIndices && face.mNumIndices >= 3; ++c) {
                    const unsigned vertex = face.mIndices[c];
                    if (vertex >= mesh.mNumVertices) {
                        throw std::runtime_error("a face refers to a point the file does not have");
                    }
                    shared = shared || used[vertex];
                    used[vertex] = true;
                }
            }
        }
        return shared;
    }

    std::array<float, 3> placedPoint(const aiVector3D& vertex) const {
        const aiVector3D p = placed_.transform * vertex;
        if (!std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(p.z)) {
            throw std::runtime_error("a point is not a finite number");
        }
        // + 0 turns -0 into 0, so that the two join.
        return {p.x + 0.0f, p.y + 0.0f, p.z + 0.0f};
    }

    void addPoint(const aiVector3D& vertex) {
        const auto p = placedPoint(vertex);
        coordinates_.insert(coordinates_.end(), p.begin(), p.end());
    }

    // The 1-based point at the corner's place, added when no earlier corner was there.
    int32_t joinedPoint(const aiVector3D& vertex) {
        const auto p = placedPoint(vertex);
        const Key key{std::bit_cast<uint32_t>(p[0]), std::bit_cast<uint32_t>(p[1]),
                      std::bit_cast<uint32_t>(p[2])};
        const auto [place, added] =
            points_.try_emplace(key, static_cast<int32_t>(coordinates_.size() / 3) + 1);
        if (added) {
            coordinates_.insert(coordinates_.end(), p.begin(), p.end());
        }
        return place->second;
    }

    using Key = std::array<uint32_t, 3>;
    struct KeyHash {
        size_t operator()(const Key& key) const {
            uint64_t h = key[0];
            h = h * 0x9E3779B97F4A7C15u ^ key[1];
            h = h * 0x9E3779B97F4A7C15u ^ key[2];
            return static_cast<size_t>(h ^ (h >> 29));
        }
    };

    const aiScene& scene_;
    const PlacedNode& placed_;
    bool mirrored_;
    std::vector<float> coordinates_;
    std::unordered_map<Key, int32_t, KeyHash> points_;
    struct FaceData {
        std::vector<int32_t> corners;
        Surface surface;
    };
    std::vector<FaceData> faces_;
};

// Refuses a scene whose nodes refer to meshes it does not have or that would make more than
// the importer builds, counting every use of a mesh.
void checkSize(const aiScene& scene, const std::vector<PlacedNode>& nodes) {
    uint64_t faces = 0;
    uint64_t corners = 0;
    uint64_t points = 0;
    for (const PlacedNode& placed : nodes) {
        for (unsigned m = 0; m < placed.node->mNumMeshes; ++m) {
            const unsigned index = placed.node->mMeshes[m];
            if (index >= scene.mNumMeshes || scene.mMeshes[index] == nullptr) {
                throw std::runtime_error("an object refers to a mesh the file does not have");
            }
            const aiMesh& mesh = *scene.mMeshes[index];
            faces += mesh.mNumFaces;
            points += mesh.mNumVertices;
            for (unsigned f = 0; f < mesh.mNumFaces && corners <= AssimpMeshImporter::maxCorners;
                 ++f) {
                corners += mesh.mFaces[f].mNumIndices;
            }
            if (faces > AssimpMeshImporter::maxFaces) {
                throw std::runtime_error("more than " +
                                         std::to_string(AssimpMeshImporter::maxFaces) + " faces");
            }
            if (corners > AssimpMeshImporter::maxCorners ||
                points > AssimpMeshImporter::maxCorners) {
                throw std::runtime_error("more than " +
                                         std::to_string(AssimpMeshImporter::maxCorners) +
                                         " points or face corners");
            }
        }
    }
}

// The lower-case extension of a file name, dot included, or "" when it has none.
std::string extensionOf(const std::string& filename) {
    const size_t dot = filename.find_last_of('.');
    if (dot == std::string::npos || filename.find('/', dot) != std::string::npos) {
        return "";
    }
    std::string extension = filename.substr(dot);
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension;
}

// The extensions of the formats read. The library's other readers are left out: some of
// them hang or crash on corrupt files (5.2's PLY reader loops for ever on a header it does
// not expect), and these are the ones fuzzed.
constexpr std::array<std::string_view, 6> readFormats{".stl",  ".off", ".obj",
                                                      ".gltf", ".glb", ".3mf"};

bool isReadFormat(std::string_view extension) {
    return std::find(readFormats.begin(), readFormats.end(), extension) != readFormats.end();
}

// Whether one of a reader's extensions (a list like "stl stlb") is a format read.
bool readsAFormat(const aiImporterDesc* description) {
    if (description == nullptr) {
        return false;
    }
    std::istringstream extensions(description->mFileExtensions);
    std::string extension;
    while (extensions >> extension) {
        if (isReadFormat("." + extension)) {
            return true;
        }
    }
    return false;
}

// The library with only the readers of the formats read (it would otherwise try all of
// them on a file it does not know by its name), no post-processing steps (no
// triangulation, no joining of its own) and no meshes made up for skeletons.
void configure(Assimp::Importer& importer) {
    for (size_t i = importer.GetImporterCount(); i-- > 0;) {
        if (!readsAFormat(importer.GetImporterInfo(i))) {
            // The library hands a reader it no longer holds back to the caller.
            std::unique_ptr<Assimp::BaseImporter> reader(importer.GetImporter(i));
            if (importer.UnregisterLoader(reader.get()) != AI_SUCCESS) {
                reader.release();
            }
        }
    }
    importer.SetPropertyBool(AI_CONFIG_IMPORT_NO_SKELETON_MESHES, true);
}

// The solids of a scene the library has read; throws std::runtime_error with the reason of a
// refusal.
ObjectList solidsOf(const aiScene* scene, const char* libraryError) {
    if (scene == nullptr) {
        const std::string reason = oneLine(libraryError);
        throw std::runtime_error(reason.empty() ? "not a mesh file the importer reads" : reason);
    }
    ObjectList objects;
    if (scene->mRootNode != nullptr) {
        const std::vector<PlacedNode> nodes = nodesWithMeshes(scene->mRootNode);
        checkSize(*scene, nodes);
        for (const PlacedNode& placed : nodes) {
            if (auto object = SolidBuilder(*scene, placed).build()) {
                objects.push_back(std::move(object));
            }
        }
    }
    if (objects.empty()) {
        throw std::runtime_error("the file holds no polygons");
    }
    return objects;
}

// What a read in the child process sends back: 'M' and the solids as the records of a mesh
// file, or 'E' and the reason of a failure.
std::vector<uint8_t> answerOf(const std::function<const aiScene*(Assimp::Importer&)>& read) {
    std::string reason;
    try {
        Assimp::Importer importer;
        configure(importer);
        const aiScene* scene = read(importer);
        if (auto records = TavrinMeshIO::records(solidsOf(scene, importer.GetErrorString()))) {
            records->insert(records->begin(), 'M');
            return *records;
        }
        reason = "a value cannot be stored";
    } catch (const std::bad_alloc&) {
        reason = "not enough memory to read the file";
    } catch (const std::exception& refusal) {
        reason = refusal.what();
    }
    std::vector<uint8_t> answer{'E'};
    answer.insert(answer.end(), reason.begin(), reason.end());
    return answer;
}

// The process's private data in bytes (what the data limit counts: a sanitizer's shadow
// memory too), 0 when the system does not say.
uint64_t dataBytesInUse() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with("VmData:")) {
            return std::strtoull(line.c_str() + 7, nullptr, 10) * 1024;
        }
    }
    return 0;
}

// The system's words as the end of a sentence: "no such file or directory".
std::string reasonOf(const std::error_code& error) {
    std::string reason = error.message();
    if (!reason.empty()) {
        reason[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(reason[0])));
    }
    return reason;
}

void writeAll(int into, std::span<const uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(into, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return;
        }
        bytes = bytes.subspan(static_cast<size_t>(std::max<ssize_t>(written, 0)));
    }
}

std::vector<uint8_t> readAll(int from) {
    std::vector<uint8_t> bytes;
    std::array<uint8_t, 65536> block;
    for (;;) {
        const ssize_t count = ::read(from, block.data(), block.size());
        if (count == 0 || (count < 0 && errno != EINTR)) {
            return bytes;
        }
        bytes.insert(bytes.end(), block.begin(), block.begin() + std::max<ssize_t>(count, 0));
    }
}

} // namespace

AssimpMeshImporter::AssimpMeshImporter() : system_(PosixFileSystem::instance()) {}

bool AssimpMeshImporter::importsExtension(const std::string& filename) {
    return isReadFormat(extensionOf(filename));
}

std::optional<ObjectList> AssimpMeshImporter::importFile(const std::string& filename) {
    FileSystem::Status status;
    if (const std::error_code error = system_.status(filename, status)) {
        return fail(reasonOf(error));
    }
    if (status.kind != FileSystem::Kind::Regular) {
        return fail("not a regular file");
    }
    if (status.size > maxFileBytes) {
        return fail("larger than the " + std::to_string(maxFileBytes >> 20) +
                    " MiB the importer reads");
    }
    return readApart([&](Assimp::Importer& importer) { return importer.ReadFile(filename, 0); });
}

std::optional<ObjectList> AssimpMeshImporter::importBytes(std::span<const uint8_t> bytes,
                                                          const std::string& extension) {
    const std::string format = extensionOf("file" + extension);
    if (!isReadFormat(format)) {
        return fail("not a format the importer reads");
    }
    // The library takes the hint without its dot.
    const std::string hint = format.substr(1);
    return readApart([&](Assimp::Importer& importer) {
        return importer.ReadFileFromMemory(bytes.data(), bytes.size(), 0, hint.c_str());
    });
}

std::optional<ObjectList> AssimpMeshImporter::fail(const std::string& reason) {
    lastError_ = reason;
    return std::nullopt;
}

std::optional<ObjectList>
AssimpMeshImporter::readApart(const std::function<const aiScene*(Assimp::Importer&)>& read) {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) {
        return fail(reasonOf({errno, std::generic_category()}));
    }
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(ends[0]);
        // The library's own complaints (failed assertions) are not the program's messages.
        const int nowhere = ::open("/dev/null", O_WRONLY);
        ::dup2(nowhere, STDOUT_FILENO);
        ::dup2(nowhere, STDERR_FILENO);
        // A crash or the alarm ends the child as the system does it, whatever handlers the
        // program installed (a crash reporter, a sanitizer, a fuzzer).
        for (const int signal : {SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGALRM}) {
            std::signal(signal, SIG_DFL);
        }
        const rlim_t limit = dataBytesInUse() + maxReadBytes;
        const rlimit memory{limit, limit};
        ::setrlimit(RLIMIT_DATA, &memory);
        ::alarm(maxReadSeconds);
        writeAll(ends[1], answerOf(read));
        // Straight out: nothing of the parent's (buffers, handlers) runs in the child.
        ::_exit(0);
    }
    const int forkError = errno;
    ::close(ends[1]);
    const std::vector<uint8_t> answer = child > 0 ? readAll(ends[0]) : std::vector<uint8_t>();
    ::close(ends[0]);
    if (child < 0) {
        return fail(reasonOf({forkError, std::generic_category()}));
    }
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFSIGNALED(status)) {
        const int signal = WTERMSIG(status);
        return fail(signal == SIGALRM
                        ? "the library took longer than " + std::to_string(maxReadSeconds) +
                              " s to read it"
                        : "the library failed on it (" + std::string(::strsignal(signal)) + ")");
    }
    if (answer.empty() || (answer[0] != 'M' && answer[0] != 'E')) {
        return fail("the library failed on it");
    }
    if (answer[0] == 'E') {
        return fail(std::string(answer.begin() + 1, answer.end()));
    }
    auto objects = TavrinMeshIO::parse(std::span(answer).subspan(1));
    if (!objects) {
        return fail("the library's answer was cut short");
    }
    lastError_.clear();
    return objects;
}
