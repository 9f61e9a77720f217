#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>

// Puts new bytes over the start of a file the way writing records into an existing file
// does: a longer old file keeps its tail behind them. Unlike writing in place, a failure at
// any step leaves the old file exactly as it was: the complete new content goes to a
// temporary file in the same folder, is flushed to the disk and closed, and only then
// renamed over the old name. (A process killed mid-save may leave that temporary file, a
// hidden ".korvan-save-..." file, behind; the old file is intact even then.)
class FileOverwriter {
public:
    // The steps of an overwrite, in order.
    enum class Step { ReadOld, Create, Write, Sync, Close, Rename };
    // Asked before each step (before every block for Write); true makes that step fail as
    // though the system had refused it. Only tests pass one, to walk every failure path.
    using FailureProbe = std::function<bool(Step)>;

    // The largest piece handed to the system in one write.
    static constexpr size_t blockSize = 64 * 1024;

    FileOverwriter() = default;
    explicit FileOverwriter(FailureProbe probe) : probe_(std::move(probe)) {}

    // False after any failure, with the old file untouched and no temporary file left. A
    // file that exists but may not be written is a failure, as opening it for writing
    // would be. A symbolic link stays a link: the file it points to is replaced. The new
    // file keeps the old one's permissions where the file system allows.
    bool overwrite(const std::filesystem::path& target, std::span<const uint8_t> content) const;

private:
    bool fails(Step step) const { return probe_ && probe_(step); }
    bool writeAll(int descriptor, std::span<const uint8_t> bytes) const;

    FailureProbe probe_;
};
