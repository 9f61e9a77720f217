#pragma once

#include "platform/FileSystem.h"

#include <cstdint>
#include <span>
#include <string>
#include <system_error>

// Replaces a file's whole content so that a failure at any step leaves the old file as it
// was and no partial file behind: the new content goes to a temporary file beside the
// target (".NAME.PID.korvan-save"), is put on the disk and closed, and only then renamed
// over the target. A later save of the same name removes temporaries that a process killed
// mid-save left behind.
//
// The replacement keeps what the user sees of the old file: its permission bits, its owner
// and group where the system allows it to be given away, and a symbolic link stays a link
// (the file it points to is replaced). Three targets are written in place instead, from the
// start, cut to the new length:
// - a file with more than one name (a hard link), so that every name sees the new content;
// - a writable file in a folder where no temporary may be created;
// - anything that is not a regular file, such as a device, which a rename would replace.
// A regular file written in place first has room reserved on the disk for the new content,
// so that a full disk or a used-up quota fails the save while the file is still as it was;
// a failure after that (an input/output error, or a file system that cannot reserve room)
// can leave it part-written. A temporary has its room reserved the same way, so that a save
// that does not fit stops before writing.
// A file that exists but may not be written is a failure, as writing it in place would be.
class FileOverwriter {
public:
    explicit FileOverwriter(FileSystem& system) : system_(system) {}

    // The empty error code when the whole content was written and closed.
    std::error_code overwrite(const std::string& target, std::span<const uint8_t> content) const;

    struct Replacement {
        std::string target;
        std::span<const uint8_t> content;
    };
    // Replaces several files as one: every new content is complete in its temporary before the
    // first file is replaced, so that a failure until then leaves every file as it was. On a
    // failure, failed is the index of the replacement that failed.
    std::error_code overwriteAll(std::span<const Replacement> replacements, size_t& failed) const;

private:
    // A replacement made ready: its temporary written and closed, or the target opened to be
    // written in place.
    struct Staged {
        std::string destination;
        std::string temporary; // empty when written in place
        FileSystem::Handle inPlace = -1;
        FileSystem::Status old;
        std::span<const uint8_t> content;
    };
    std::error_code stage(const Replacement& replacement, Staged& staged) const;
    std::error_code commit(const Staged& staged) const;
    void discard(const Staged& staged) const;

    std::error_code writeAll(FileSystem::Handle handle, std::span<const uint8_t> bytes) const;
    // Room on the disk for a regular file of size bytes that now holds oldSize bytes; a file
    // system that cannot reserve is written all the same. On failure the file keeps its
    // old length.
    std::error_code reserve(FileSystem::Handle handle, uint64_t oldSize, uint64_t size) const;
    std::error_code writeInPlace(FileSystem::Handle handle, const FileSystem::Status& old,
                                 std::span<const uint8_t> content) const;
    // Gives a new temporary the old file's owner and permissions (old is null for a new
    // file), writes the content, puts it on the disk and closes it.
    std::error_code fillTemporary(FileSystem::Handle handle, const FileSystem::Status* old,
                                  std::span<const uint8_t> content) const;
    void removeStaleTemporaries(const std::string& folder, const std::string& name) const;

    FileSystem& system_;
};
