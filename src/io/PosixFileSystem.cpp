#include "io/PosixFileSystem.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <memory>
#include <optional>

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::error_code lastError() {
    return {errno, std::generic_category()};
}

// The result of a call that returns -1 on failure.
std::error_code checked(long result) {
    return result == -1 ? lastError() : std::error_code();
}

FileSystem::Status statusFrom(const struct stat& info) {
    FileSystem::Status status;
    status.kind = S_ISREG(info.st_mode)   ? FileSystem::Kind::Regular
                  : S_ISDIR(info.st_mode) ? FileSystem::Kind::Directory
                                          : FileSystem::Kind::Other;
    status.size = static_cast<uint64_t>(info.st_size);
    status.permissions = static_cast<uint32_t>(info.st_mode & 07777);
    status.owner = info.st_uid;
    status.group = info.st_gid;
    status.links = static_cast<uint64_t>(info.st_nlink);
    return status;
}

// As many links as the system itself follows in one path.
constexpr int maxLinks = 40;

// The path with every link resolved, of a file that exists; nothing (and errno) otherwise.
std::optional<std::string> realPath(const std::string& path) {
    const std::unique_ptr<char, void (*)(void*)> resolved(::realpath(path.c_str(), nullptr),
                                                          &std::free);
    if (!resolved) {
        return std::nullopt;
    }
    return std::string(resolved.get());
}

// A call interrupted by a signal is repeated.
template <class Call> long retried(Call call) {
    long result;
    do {
        result = call();
    } while (result == -1 && errno == EINTR);
    return result;
}

std::error_code opened(int descriptor, FileSystem::Handle& handle) {
    if (descriptor < 0) {
        return lastError();
    }
    handle = descriptor;
    return {};
}

} // namespace

PosixFileSystem& PosixFileSystem::instance() {
    static PosixFileSystem system;
    return system;
}

std::error_code PosixFileSystem::status(const std::string& path, Status& status) {
    struct stat info {};
    if (::stat(path.c_str(), &info) != 0) {
        return lastError();
    }
    status = statusFrom(info);
    return {};
}

std::error_code PosixFileSystem::resolve(const std::string& path, std::string& resolved) {
    // An existing file resolves through itself; a missing one through its folder, which must
    // exist; a link to a missing file through the name it points to, where writing through
    // the link would create the file.
    std::string name = path;
    for (int links = 0; links < maxLinks; ++links) {
        if (const std::optional<std::string> whole = realPath(name)) {
            resolved = *whole;
            return {};
        }
        if (errno != ENOENT) {
            return lastError();
        }
        const std::string folder = name.substr(0, name.find_last_of('/') + 1); // "" for none
        struct stat info {};
        if (::lstat(name.c_str(), &info) != 0 || !S_ISLNK(info.st_mode)) {
            const std::optional<std::string> parent = realPath(folder.empty() ? "." : folder);
            if (!parent) {
                return lastError();
            }
            resolved = *parent + "/" + name.substr(folder.size());
            return {};
        }
        std::string target(PATH_MAX, '\0');
        const ssize_t length = ::readlink(name.c_str(), target.data(), target.size());
        if (length < 0) {
            return lastError();
        }
        target.resize(static_cast<size_t>(length));
        name = target.starts_with('/') ? target : folder + target;
    }
    return std::make_error_code(std::errc::too_many_symbolic_link_levels);
}

std::error_code PosixFileSystem::list(const std::string& folder, std::vector<std::string>& names) {
    struct CloseFolder {
        void operator()(DIR* folder) const { ::closedir(folder); }
    };
    const std::unique_ptr<DIR, CloseFolder> directory(
        ::opendir(folder.empty() ? "." : folder.c_str()));
    if (!directory) {
        return lastError();
    }
    names.clear();
    errno = 0;
    while (const dirent* entry = ::readdir(directory.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") {
            names.push_back(name);
        }
    }
    return errno != 0 ? lastError() : std::error_code();
}

std::error_code PosixFileSystem::openToRead(const std::string& path, Handle& handle) {
    return opened(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC), handle);
}

std::error_code PosixFileSystem::openToWrite(const std::string& path, Handle& handle) {
    // Without O_NONBLOCK a pipe that no one reads would hold the program for ever.
    return opened(::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC), handle);
}

std::error_code PosixFileSystem::createNew(const std::string& path, Handle& handle) {
    return opened(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666), handle);
}

std::error_code PosixFileSystem::statusOf(Handle handle, Status& status) {
    struct stat info {};
    if (::fstat(handle, &info) != 0) {
        return lastError();
    }
    status = statusFrom(info);
    return {};
}

std::error_code PosixFileSystem::read(Handle handle, uint64_t offset, std::span<uint8_t> into,
                                      size_t& count) {
    const long result = retried(
        [&] { return ::pread(handle, into.data(), into.size(), static_cast<off_t>(offset)); });
    count = result > 0 ? static_cast<size_t>(result) : 0;
    return checked(result);
}

std::error_code PosixFileSystem::write(Handle handle, std::span<const uint8_t> bytes,
                                       size_t& count) {
    const long result = retried([&] { return ::write(handle, bytes.data(), bytes.size()); });
    count = result > 0 ? static_cast<size_t>(result) : 0;
    return checked(result);
}

std::error_code PosixFileSystem::truncate(Handle handle, uint64_t size) {
    return checked(retried([&] { return ::ftruncate(handle, static_cast<off_t>(size)); }));
}

std::error_code PosixFileSystem::reserve(Handle handle, uint64_t size) {
    // Linux's own call: where the file system cannot reserve, posix_fallocate would write
    // zeros instead, reading the file first, which a handle opened only for writing cannot.
    if (size == 0) {
        return {};
    }
    return checked(retried([&] { return ::fallocate(handle, 0, 0, static_cast<off_t>(size)); }));
}

std::error_code PosixFileSystem::setOwner(Handle handle, uint32_t owner, uint32_t group) {
    return checked(::fchown(handle, owner, group));
}

std::error_code PosixFileSystem::setPermissions(Handle handle, uint32_t permissions) {
    return checked(::fchmod(handle, static_cast<mode_t>(permissions)));
}

std::error_code PosixFileSystem::sync(Handle handle) {
    return checked(retried([&] { return ::fsync(handle); }));
}

std::error_code PosixFileSystem::close(Handle handle) {
    // Linux frees the descriptor even when close reports EINTR; trying again could close
    // a descriptor that someone else has opened meanwhile.
    return checked(::close(handle));
}

std::error_code PosixFileSystem::rename(const std::string& from, const std::string& to) {
    return checked(::rename(from.c_str(), to.c_str()));
}

std::error_code PosixFileSystem::remove(const std::string& path) {
    return checked(::unlink(path.c_str()));
}

std::error_code PosixFileSystem::syncFolder(const std::string& folder) {
    Handle handle = -1;
    if (const std::error_code error = opened(
            ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC),
            handle)) {
        return error;
    }
    const std::error_code synced = sync(handle);
    ::close(handle);
    return synced;
}

int PosixFileSystem::processId() {
    return static_cast<int>(::getpid());
}

bool PosixFileSystem::processRunning(int id) {
    // A process of another user answers EPERM, and is running all the same.
    return id > 0 && (::kill(static_cast<pid_t>(id), 0) == 0 || errno == EPERM);
}
