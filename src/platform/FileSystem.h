#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <system_error>
#include <vector>

// The operating system's file calls, one operation each, so that the file logic above them
// can be tested against every failure the system may report. Failures come back as the
// system's own error codes, so that a message can say what really happened.
class FileSystem {
public:
    using Handle = int;

    enum class Kind { Regular, Directory, Other };
    struct Status {
        Kind kind = Kind::Other;
        uint64_t size = 0;
        uint32_t permissions = 0; // the mode's permission bits, set-id bits included
        uint32_t owner = 0;
        uint32_t group = 0;
        uint64_t links = 1; // the number of names the file has
    };

    virtual ~FileSystem() = default;

    // The file a path names, symbolic links followed.
    virtual std::error_code status(const std::string& path, Status& status) = 0;
    // The path with every symbolic link in it resolved; a missing last part is allowed.
    virtual std::error_code resolve(const std::string& path, std::string& resolved) = 0;
    // The names in a folder ("" is the current one), "." and ".." left out.
    virtual std::error_code list(const std::string& folder, std::vector<std::string>& names) = 0;

    // Opening never waits: a pipe without a partner fails or reads empty at once.
    virtual std::error_code openToRead(const std::string& path, Handle& handle) = 0;
    // An existing file, for writing in place from its start, nothing cut off.
    virtual std::error_code openToWrite(const std::string& path, Handle& handle) = 0;
    // A new file that no one else can have opened; fails when the name exists.
    virtual std::error_code createNew(const std::string& path, Handle& handle) = 0;
    virtual std::error_code statusOf(Handle handle, Status& status) = 0;
    // Reads from the given place in the file; count is 0 at its end.
    virtual std::error_code read(Handle handle, uint64_t offset, std::span<uint8_t> into,
                                 size_t& count) = 0;
    virtual std::error_code write(Handle handle, std::span<const uint8_t> bytes, size_t& count) = 0;
    virtual std::error_code truncate(Handle handle, uint64_t size) = 0;
    // Gives the file's first size bytes their room on the disk, growing it with zero bytes
    // to that size when it is shorter, so that writing them cannot run out of space; the
    // bytes it holds are kept. operation_not_supported where the file system cannot promise
    // room.
    virtual std::error_code reserve(Handle handle, uint64_t size) = 0;
    virtual std::error_code setOwner(Handle handle, uint32_t owner, uint32_t group) = 0;
    virtual std::error_code setPermissions(Handle handle, uint32_t permissions) = 0;
    // Puts the file's content on the disk.
    virtual std::error_code sync(Handle handle) = 0;
    virtual std::error_code close(Handle handle) = 0;

    // Replaces to by from in one step.
    virtual std::error_code rename(const std::string& from, const std::string& to) = 0;
    virtual std::error_code remove(const std::string& path) = 0;
    // Puts a folder's entries (a rename, say) on the disk.
    virtual std::error_code syncFolder(const std::string& folder) = 0;

    // Temporary files carry the number of the process that writes them, so that a later
    // process can tell those left behind by one that died.
    virtual int processId() = 0;
    virtual bool processRunning(int id) = 0;
};
