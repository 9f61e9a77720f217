#pragma once

#include "io/PosixFileSystem.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <map>
#include <optional>
#include <unistd.h>

// The system's own files, but a call that the test names fails as though the system had
// refused it. A failing close still closes, as the system's does. The disk may also be
// given less room than it has.
class FaultyFileSystem : public FileSystem {
public:
    // The calls a test may make fail by name; every other call is counted only.
    enum class Call { other, openToRead, openToWrite, createNew, write };

    // Every call of this kind fails with the error.
    void failAll(Call call, std::errc error) { failing_[call] = error; }
    // The call with this number, counted from 0 over all calls, fails with an input/output
    // error.
    void failCallNumber(size_t number) { failingNumber_ = number; }
    size_t callCount() const { return calls_; }
    // The disk has room for this many more bytes: a write or reservation that would grow a
    // file beyond it fails with no space left, a write after writing what fits.
    void leaveRoom(uint64_t bytes) { room_ = bytes; }

    std::error_code read(Handle handle, uint64_t offset, std::span<uint8_t> into,
                         size_t& count) override {
        count = 0;
        return unlessFailing(Call::other, [&] { return real().read(handle, offset, into, count); });
    }
    std::error_code write(Handle handle, std::span<const uint8_t> bytes, size_t& count) override {
        count = 0;
        return unlessFailing(Call::write, [&] {
            const off_t at = ::lseek(handle, 0, SEEK_CUR); // devices have no place
            const uint64_t grows =
                growth(handle, at < 0 ? 0 : static_cast<uint64_t>(at) + bytes.size());
            if (grows > room_) {
                if (grows - room_ >= bytes.size()) {
                    return std::make_error_code(std::errc::no_space_on_device);
                }
                bytes = bytes.first(bytes.size() - (grows - room_));
            }
            room_ -= std::min(grows, room_);
            return real().write(handle, bytes, count);
        });
    }
    std::error_code reserve(Handle handle, uint64_t size) override {
        return unlessFailing(Call::other, [&] {
            const uint64_t grows = growth(handle, size);
            if (grows > room_) {
                return std::make_error_code(std::errc::no_space_on_device);
            }
            room_ -= grows;
            return real().reserve(handle, size);
        });
    }
    std::error_code close(Handle handle) override {
        const std::error_code error = fault(Call::other);
        const std::error_code closed = real().close(handle);
        return error ? error : closed;
    }
    int processId() override { return real().processId(); }
    bool processRunning(int id) override { return real().processRunning(id); }

private:
    static PosixFileSystem& real() { return PosixFileSystem::instance(); }

    template <class Real> std::error_code unlessFailing(Call call, Real realCall) {
        const std::error_code error = fault(call);
        return error ? error : realCall();
    }

    // How many bytes the file grows by when it reaches end.
    static uint64_t growth(Handle handle, uint64_t end) {
        Status status;
        real().statusOf(handle, status);
        return end > status.size ? end - status.size : 0;
    }

    std::error_code fault(Call call) {
        const size_t number = calls_++;
        if (failingNumber_ == number) {
            return std::make_error_code(std::errc::io_error);
        }
        const auto failing = failing_.find(call);
        return failing != failing_.end() ? std::make_error_code(failing->second)
                                         : std::error_code();
    }

    std::map<Call, std::errc> failing_;
    std::optional<size_t> failingNumber_;
    size_t calls_ = 0;
    uint64_t room_ = std::numeric_limits<uint64_t>::max();

public:
    // The calls that only fail when told to, and otherwise are the system's own.
#define FORWARD(call, name, parameters, arguments)                                                 \
    std::error_code name parameters override {                                                     \
        return unlessFailing(Call::call, [&] { return real().name arguments; });                   \
    }
    FORWARD(other, status, (const std::string& path, Status& status), (path, status))
    FORWARD(other, resolve, (const std::string& path, std::string& resolved), (path, resolved))
    FORWARD(other, list, (const std::string& folder, std::vector<std::string>& names),
            (folder, names))
    FORWARD(openToRead, openToRead, (const std::string& path, Handle& handle), (path, handle))
    FORWARD(openToWrite, openToWrite, (const std::string& path, Handle& handle), (path, handle))
    FORWARD(createNew, createNew, (const std::string& path, Handle& handle), (path, handle))
    FORWARD(other, statusOf, (Handle handle, Status& status), (handle, status))
    FORWARD(other, truncate, (Handle handle, uint64_t size), (handle, size))
    FORWARD(other, setOwner, (Handle handle, uint32_t owner, uint32_t group),
            (handle, owner, group))
    FORWARD(other, setPermissions, (Handle handle, uint32_t permissions), (handle, permissions))
    FORWARD(other, sync, (Handle handle), (handle))
    FORWARD(other, rename, (const std::string& from, const std::string& to), (from, to))
    FORWARD(other, remove, (const std::string& path), (path))
    FORWARD(other, syncFolder, (const std::string& folder), (folder))
};
#undef FORWARD
