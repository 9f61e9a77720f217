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
    enum class Call { other, openToRead, openToWrite, createNew, write, sync };

    // Every call of this kind fails with the error.
    void failAll(Call call, std::errc error) { failing_[call] = error; }
    // The call with this number, counted from 0 over all calls, fails with an input/output
    // error.
    void failCallNumber(size_t number) { failingNumber_ = number; }
    size_t callCount() const { return calls_; }
    // The disk has room for this many more bytes: a write or reservation that would grow a
    // file beyond it fails with no space left, a write after writing what fits.
    void leaveRoom(uint64_t bytes) { room_ = bytes; }

    std::error_code status(const std::string& path, Status& status) override {
        return unlessFailing(Call::other, [&] { return real().status(path, status); });
    }
    std::error_code resolve(const std::string& path, std::string& resolved) override {
        return unlessFailing(Call::other, [&] { return real().resolve(path, resolved); });
    }
    std::error_code list(const std::string& folder, std::vector<std::string>& names) override {
        return unlessFailing(Call::other, [&] { return real().list(folder, names); });
    }
    std::error_code openToRead(const std::string& path, Handle& handle) override {
        return unlessFailing(Call::openToRead, [&] { return real().openToRead(path, handle); });
    }
    std::error_code openToWrite(const std::string& path, Handle& handle) override {
        return unlessFailing(Call::openToWrite, [&] { return real().openToWrite(path, handle); });
    }
    std::error_code createNew(const std::string& path, Handle& handle) override {
        return unlessFailing(Call::createNew, [&] { return real().createNew(path, handle); });
    }
    std::error_code statusOf(Handle handle, Status& status) override {
        return unlessFailing(Call::other, [&] { return real().statusOf(handle, status); });
    }
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
    std::error_code truncate(Handle handle, uint64_t size) override {
        return unlessFailing(Call::other, [&] { return real().truncate(handle, size); });
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
    std::error_code setOwner(Handle handle, uint32_t owner, uint32_t group) override {
        return unlessFailing(Call::other, [&] { return real().setOwner(handle, owner, group); });
    }
    std::error_code setPermissions(Handle handle, uint32_t permissions) override {
        return unlessFailing(Call::other,
                             [&] { return real().setPermissions(handle, permissions); });
    }
    std::error_code sync(Handle handle) override {
        return unlessFailing(Call::sync, [&] { return real().sync(handle); });
    }
    std::error_code close(Handle handle) override {
        const std::error_code error = fault(Call::other);
        const std::error_code closed = real().close(handle);
        return error ? error : closed;
    }
    std::error_code rename(const std::string& from, const std::string& to) override {
        return unlessFailing(Call::other, [&] { return real().rename(from, to); });
    }
    std::error_code remove(const std::string& path) override {
        return unlessFailing(Call::other, [&] { return real().remove(path); });
    }
    std::error_code syncFolder(const std::string& folder) override {
        return unlessFailing(Call::other, [&] { return real().syncFolder(folder); });
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
};
