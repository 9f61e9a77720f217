#include "io/FileOverwriter.h"

#include "io/FileBytes.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// Replacing a link by a file would cut it; the file it points to is what the user saves.
fs::path resolveLink(const fs::path& target) {
    std::error_code error;
    if (fs::is_symlink(fs::symlink_status(target, error))) {
        const fs::path resolved = fs::canonical(target, error);
        if (!error) {
            return resolved;
        }
    }
    return target;
}

// A new, empty file next to the destination, readable and writable by the user (the
// umask applies, as to any new file); -1 when none can be made.
int createTemporary(const fs::path& destination, fs::path& temporary) {
    static std::atomic<unsigned> counter{0};
    for (int attempt = 0; attempt < 100; ++attempt) {
        temporary = destination.parent_path() / (".korvan-save-" + std::to_string(::getpid()) +
                                                 "-" + std::to_string(++counter) + ".tmp");
        const int descriptor =
            ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (descriptor >= 0 || errno != EEXIST) {
            return descriptor;
        }
    }
    return -1;
}

// Makes the rename itself durable. The new file is complete whatever happens here, so a
// failure only costs durability and is not reported.
void syncFolder(const fs::path& folder) {
    const int descriptor =
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

} // namespace

bool FileOverwriter::overwrite(const fs::path& target, std::span<const uint8_t> content) const {
    const fs::path destination = resolveLink(target);
    if (fails(Step::ReadOld)) {
        return false;
    }
    std::error_code error;
    const fs::file_status old = fs::status(destination, error);
    const bool oldExists = old.type() != fs::file_type::not_found;
    if (oldExists && (error || ::access(destination.c_str(), W_OK) != 0)) {
        return false;
    }
    std::vector<uint8_t> tail;
    if (oldExists) {
        std::optional<std::vector<uint8_t>> bytes = FileBytes::read(destination, content.size());
        if (!bytes) {
            return false;
        }
        tail = std::move(*bytes);
    }

    fs::path temporary;
    const int descriptor = fails(Step::Create) ? -1 : createTemporary(destination, temporary);
    if (descriptor < 0) {
        return false;
    }
    if (oldExists) {
        fs::permissions(temporary, old.permissions(), fs::perm_options::replace, error);
    }
    const bool written = writeAll(descriptor, content) && writeAll(descriptor, tail) &&
                         !fails(Step::Sync) && ::fsync(descriptor) == 0;
    const bool closeFails = fails(Step::Close);
    const bool closed = ::close(descriptor) == 0 && !closeFails;
    if (written && closed && !fails(Step::Rename)) {
        fs::rename(temporary, destination, error);
        if (!error) {
            syncFolder(destination.parent_path());
            return true;
        }
    }
    fs::remove(temporary, error);
    return false;
}

bool FileOverwriter::writeAll(int descriptor, std::span<const uint8_t> bytes) const {
    while (!bytes.empty()) {
        if (fails(Step::Write)) {
            return false;
        }
        const ssize_t written =
            ::write(descriptor, bytes.data(), std::min(bytes.size(), blockSize));
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        bytes = bytes.subspan(static_cast<size_t>(written));
    }
    return true;
}
