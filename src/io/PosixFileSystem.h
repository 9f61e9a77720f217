#pragma once

#include "platform/FileSystem.h"

// The file system of a POSIX system, through its own calls.
class PosixFileSystem : public FileSystem {
public:
    // The one the program uses.
    static PosixFileSystem& instance();

    std::error_code status(const std::string& path, Status& status) override;
    std::error_code resolve(const std::string& path, std::string& resolved) override;
    std::error_code list(const std::string& folder, std::vector<std::string>& names) override;
    std::error_code openToRead(const std::string& path, Handle& handle) override;
    std::error_code openToWrite(const std::string& path, Handle& handle) override;
    std::error_code createNew(const std::string& path, Handle& handle) override;
    std::error_code statusOf(Handle handle, Status& status) override;
    std::error_code read(Handle handle, uint64_t offset, std::span<uint8_t> into,
                         size_t& count) override;
    std::error_code write(Handle handle, std::span<const uint8_t> bytes, size_t& count) override;
    std::error_code truncate(Handle handle, uint64_t size) override;
    std::error_code reserve(Handle handle, uint64_t size) override;
    std::error_code setOwner(Handle handle, uint32_t owner, uint32_t group) override;
    std::error_code setPermissions(Handle handle, uint32_t permissions) override;
    std::error_code sync(Handle handle) override;
    std::error_code close(Handle handle) override;
    std::error_code rename(const std::string& from, const std::string& to) override;
    std::error_code remove(const std::string& path) override;
    std::error_code syncFolder(const std::string& folder) override;
    int processId() override;
    bool processRunning(int id) override;
};
