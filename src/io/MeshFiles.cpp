#include "io/MeshFiles.h"

#include "io/AssimpMeshImporter.h"
#include "io/FileBytes.h"
#include "io/FileError.h"
#include "io/FileOverwriter.h"
#include "io/MeshFormatError.h"
#include "io/ObjReader.h"
#include "io/ObjWriter.h"
#include "io/PlyReader.h"
#include "io/PlyWriter.h"
#include "io/StlReader.h"
#include "io/StlWriter.h"
#include "io/ThreeMfWriter.h"

#include <algorithm>
#include <cctype>
#include <new>

namespace {

// Where the extension starts: at the last dot after the last slash, or the end.
size_t extensionStart(const std::string& path) {
    const size_t dot = path.rfind('.');
    const size_t slash = path.rfind('/');
    return dot == std::string::npos || (slash != std::string::npos && dot < slash) ? path.size()
                                                                                   : dot;
}

std::span<const uint8_t> bytesOf(const std::string& text) {
    return {reinterpret_cast<const uint8_t*>(text.data()), text.size()};
}

} // namespace

std::optional<MeshFiles::Format> MeshFiles::formatOf(const std::string& path) {
    std::string extension = path.substr(extensionStart(path));
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    for (const auto& [text, format] : {std::pair{".tvm", Format::Tvm},
                                       {".obj", Format::Obj},
                                       {".ply", Format::Ply},
                                       {".stl", Format::Stl},
                                       {".3mf", Format::ThreeMf}}) {
        if (extension == text) {
            return format;
        }
    }
    return std::nullopt;
}

std::string MeshFiles::libraryOf(const std::string& objPath) {
    return objPath.substr(0, extensionStart(objPath)) + ".mtl";
}

std::vector<uint8_t> MeshFiles::read(const std::string& path) const {
    std::vector<uint8_t> bytes;
    if (const std::error_code error = FileBytes::read(system_, path, 0, bytes)) {
        throw Error(path, error);
    }
    return bytes;
}

bool MeshFiles::isReadable(const std::string& path) {
    const std::optional<Format> format = formatOf(path);
    return (format && *format != Format::ThreeMf) || AssimpMeshImporter::importsExtension(path);
}

ObjectList MeshFiles::open(const std::string& path) const {
    if (!isReadable(path)) {
        throw Error(path, std::make_error_code(std::errc::invalid_argument));
    }
    const std::optional<Format> format = formatOf(path);
    if (!format || *format == Format::ThreeMf) {
        // A file that cannot be opened is the system's error, as for the formats read here.
        FileSystem::Status status;
        if (const std::error_code error = system_.status(path, status)) {
            throw Error(path, error);
        }
        AssimpMeshImporter importer(system_);
        if (auto objects = importer.importFile(path)) {
            return *std::move(objects);
        }
        throw Error(path, FileError::corrupt, importer.lastError());
    }
    try {
        const std::vector<uint8_t> bytes = read(path);
        switch (*format) {
        case Format::Tvm:
            if (auto objects = TavrinMeshIO::parse(bytes)) {
                return *std::move(objects);
            }
            throw Error(path, FileError::corrupt);
        case Format::Obj: {
            const size_t slash = path.rfind('/');
            const std::string folder = slash == std::string::npos ? "" : path.substr(0, slash + 1);
            return ObjReader::parse({reinterpret_cast<const char*>(bytes.data()), bytes.size()},
                                    [&](const std::string& name) -> std::optional<std::string> {
                                        std::vector<uint8_t> library;
                                        if (FileBytes::read(system_, folder + name, 0, library)) {
                                            return std::nullopt;
                                        }
                                        return std::string(library.begin(), library.end());
                                    });
        }
        case Format::Ply:
            return PlyReader::parse(bytes);
        case Format::Stl:
            return StlReader::parse(bytes);
        case Format::ThreeMf:
            break;
        }
    } catch (const MeshFormatError& error) {
        throw Error(path, FileError::corrupt, error.what());
    } catch (const std::bad_alloc&) {
        throw Error(path, std::make_error_code(std::errc::not_enough_memory));
    }
    return {};
}

void MeshFiles::save(const ObjectList& objects, const std::string& path, bool ascii) const {
    const std::optional<Format> format = formatOf(path);
    if (!format) {
        throw Error(path, std::make_error_code(std::errc::invalid_argument));
    }
    const FileOverwriter overwriter(system_);
    std::string failedFile = path;
    std::error_code error;
    try {
        switch (*format) {
        case Format::Tvm: {
            TavrinMeshIO meshIO(system_);
            const auto content = meshIO.savedContent(objects, path);
            error = content ? overwriter.overwrite(path, *content) : meshIO.getLastError();
            break;
        }
        case Format::Obj: {
            const std::string library = libraryOf(path);
            // The name without its folder (all of it when there is no slash: npos + 1 is 0).
            const ObjWriter::Text text =
                ObjWriter::encode(objects, library.substr(library.rfind('/') + 1));
            const FileOverwriter::Replacement both[] = {{path, bytesOf(text.obj)},
                                                        {library, bytesOf(text.mtl)}};
            size_t failed = 0;
            error = overwriter.overwriteAll(both, failed);
            if (error) {
                failedFile = both[failed].target;
            }
            break;
        }
        case Format::Ply:
            error = overwriter.overwrite(path, PlyWriter::encode(objects));
            break;
        case Format::Stl: {
            const std::vector<uint8_t> content = StlWriter::encode(objects, ascii);
            error = content.empty() ? std::make_error_code(std::errc::file_too_large)
                                    : overwriter.overwrite(path, content);
            break;
        }
        case Format::ThreeMf: {
            const std::vector<uint8_t> content = ThreeMfWriter::encode(objects);
            error = content.empty() ? std::make_error_code(std::errc::file_too_large)
                                    : overwriter.overwrite(path, content);
            break;
        }
        }
    } catch (const std::bad_alloc&) {
        error = std::make_error_code(std::errc::not_enough_memory);
    }
    if (error) {
        throw Error(failedFile, error);
    }
}
