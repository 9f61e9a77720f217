#include "io/FileOverwriter.h"

#include <algorithm>
#include <cctype>
#include <vector>

namespace {

constexpr const char* temporarySuffix = ".korvan-save";
// The largest piece handed to the system in one write.
constexpr size_t blockSize = 64 * 1024;

// The name of the temporary that process id writes for a file called name.
std::string temporaryName(const std::string& name, int id) {
    return "." + name + "." + std::to_string(id) + temporarySuffix;
}

// The process id in a temporary's name for a file called name; -1 when it is not one.
int temporaryOwner(const std::string& entry, const std::string& name) {
    const std::string prefix = "." + name + ".";
    if (!entry.starts_with(prefix) || !entry.ends_with(temporarySuffix)) {
        return -1;
    }
    const std::string digits =
        entry.substr(prefix.size(), entry.size() - prefix.size() -
                                        std::char_traits<char>::length(temporarySuffix));
    if (digits.empty() || digits.size() > 9 ||
        !std::all_of(digits.begin(), digits.end(),
                     [](unsigned char c) { return std::isdigit(c) != 0; })) {
        return -1;
    }
    return std::stoi(digits);
}

bool isPermissionError(const std::error_code& error) {
    return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
           error == std::errc::read_only_file_system;
}

} // namespace

std::error_code FileOverwriter::overwrite(const std::string& target,
                                          std::span<const uint8_t> content) const {
    size_t failed = 0;
    const Replacement replacement{target, content};
    return overwriteAll({&replacement, 1}, failed);
}

std::error_code FileOverwriter::overwriteAll(std::span<const Replacement> replacements,
                                             size_t& failed) const {
    std::vector<Staged> staged(replacements.size());
    for (failed = 0; failed < replacements.size(); ++failed) {
        if (const std::error_code error = stage(replacements[failed], staged[failed])) {
            for (size_t i = 0; i < failed; ++i) {
                discard(staged[i]);
            }
            return error;
        }
    }
    std::error_code first;
    for (size_t i = 0; i < staged.size(); ++i) {
        const std::error_code error = commit(staged[i]);
        if (error && !first) {
            first = error;
            failed = i;
        }
    }
    return first;
}

std::error_code FileOverwriter::stage(const Replacement& replacement, Staged& staged) const {
    std::string& destination = staged.destination;
    staged.content = replacement.content;
    if (const std::error_code error = system_.resolve(replacement.target, destination)) {
        return error;
    }
    FileSystem::Status& old = staged.old;
    const std::error_code missing = system_.status(destination, old);
    if (missing && missing != std::errc::no_such_file_or_directory) {
        return missing;
    }
    if (!missing && old.kind == FileSystem::Kind::Directory) {
        return std::make_error_code(std::errc::is_a_directory);
    }
    // Opening it for writing is the test of whether the user may change it at all.
    FileSystem::Handle inPlace = -1;
    if (!missing) {
        if (const std::error_code error = system_.openToWrite(destination, inPlace)) {
            return error;
        }
        if (old.kind != FileSystem::Kind::Regular || old.links > 1) {
            staged.inPlace = inPlace;
            return {};
        }
    }

    const size_t slash = destination.find_last_of('/');
    const std::string folder = destination.substr(0, slash + 1);
    const std::string name = destination.substr(slash + 1);
    removeStaleTemporaries(folder, name);
    const std::string temporary = folder + temporaryName(name, system_.processId());
    FileSystem::Handle handle = -1;
    const std::error_code created = system_.createNew(temporary, handle);
    if (created && !missing && isPermissionError(created)) {
        staged.inPlace = inPlace;
        return {};
    }
    if (!missing) {
        system_.close(inPlace);
    }
    if (created) {
        return created;
    }
    if (const std::error_code error =
            fillTemporary(handle, missing ? nullptr : &old, replacement.content)) {
        system_.remove(temporary);
        return error;
    }
    staged.temporary = temporary;
    return {};
}

std::error_code FileOverwriter::commit(const Staged& staged) const {
    if (staged.temporary.empty()) {
        return writeInPlace(staged.inPlace, staged.old, staged.content);
    }
    if (const std::error_code renamed = system_.rename(staged.temporary, staged.destination)) {
        system_.remove(staged.temporary);
        return renamed;
    }
    // The new file is complete whatever happens here; a failure only costs durability.
    system_.syncFolder(staged.destination.substr(0, staged.destination.find_last_of('/') + 1));
    return {};
}

void FileOverwriter::discard(const Staged& staged) const {
    if (staged.temporary.empty()) {
        system_.close(staged.inPlace);
    } else {
        system_.remove(staged.temporary);
    }
}

std::error_code FileOverwriter::writeInPlace(FileSystem::Handle handle,
                                             const FileSystem::Status& old,
                                             std::span<const uint8_t> content) const {
    // Devices neither make room, nor shrink, nor keep anything to put on a disk.
    const bool regular = old.kind == FileSystem::Kind::Regular;
    std::error_code error = regular ? reserve(handle, old.size, content.size()) : std::error_code();
    if (!error) {
        error = writeAll(handle, content);
    }
    if (!error && regular) {
        error = system_.truncate(handle, content.size());
        if (!error) {
            error = system_.sync(handle);
        }
    }
    const std::error_code closed = system_.close(handle);
    return error ? error : closed;
}

std::error_code FileOverwriter::fillTemporary(FileSystem::Handle handle,
                                              const FileSystem::Status* old,
                                              std::span<const uint8_t> content) const {
    std::error_code error;
    if (old != nullptr) {
        // Only the superuser can give a file away; a group the user belongs to can be kept
        // by anyone. Ownership goes first, since changing it clears set-id bits.
        if (system_.setOwner(handle, old->owner, old->group)) {
            system_.setOwner(handle, static_cast<uint32_t>(-1), old->group);
        }
        error = system_.setPermissions(handle, old->permissions);
    }
    if (!error) {
        error = reserve(handle, 0, content.size());
    }
    if (!error) {
        error = writeAll(handle, content);
    }
    if (!error) {
        error = system_.sync(handle);
    }
    const std::error_code closed = system_.close(handle);
    return error ? error : closed;
}

std::error_code FileOverwriter::reserve(FileSystem::Handle handle, uint64_t oldSize,
                                        uint64_t size) const {
    const std::error_code error = system_.reserve(handle, size);
    if (!error || error == std::errc::operation_not_supported) {
        return {};
    }
    // A reservation cut short may have grown the file by part of the room.
    if (size > oldSize) {
        system_.truncate(handle, oldSize);
    }
    return error;
}

void FileOverwriter::removeStaleTemporaries(const std::string& folder,
                                            const std::string& name) const {
    std::vector<std::string> entries;
    if (system_.list(folder, entries)) {
        return;
    }
    for (const std::string& entry : entries) {
        const int id = temporaryOwner(entry, name);
        if (id >= 0 && (id == system_.processId() || !system_.processRunning(id))) {
            system_.remove(folder + entry);
        }
    }
}

std::error_code FileOverwriter::writeAll(FileSystem::Handle handle,
                                         std::span<const uint8_t> bytes) const {
    while (!bytes.empty()) {
        size_t count = 0;
        if (const std::error_code error =
                system_.write(handle, bytes.first(std::min(bytes.size(), blockSize)), count)) {
            return error;
        }
        if (count == 0) {
            return std::make_error_code(std::errc::io_error);
        }
        bytes = bytes.subspan(count);
    }
    return {};
}
