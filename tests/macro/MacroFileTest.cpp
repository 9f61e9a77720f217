#include "macro/MacroFile.h"
#include "io/FileError.h"
#include "macro/MacroWriter.h"
#include "support/FaultyFileSystem.h"
#include "support/TempFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

// The message of the Unreadable that taking every action of the macro throws, or "".
std::string unreadable(MacroFile& macro) {
    try {
        while (macro.next({})) {
        }
    } catch (const UserSource::Unreadable& error) {
        return error.message;
    }
    return "";
}

// A reader of a macro that is line, repeated for ever, and counts the bytes it hands out.
MacroFile endless(const std::string& line, size_t& handedOut) {
    return MacroFile([line, &handedOut](std::span<char> into) {
        for (char& c : into) {
            c = line[handedOut++ % line.size()];
        }
        return into.size();
    });
}

} // namespace

TEST(MacroFile, ReadsALineWhenThePlayerAsksForIt) {
    size_t handedOut = 0;
    MacroFile macro = endless("key 13\n", handedOut);
    for (int i = 0; i < 1000; ++i) {
        ASSERT_TRUE(macro.next({}).has_value());
    }
    EXPECT_EQ(macro.where(), "line 1000");
    EXPECT_LE(handedOut, 64u * 1024);

    // A pop-up menu waiting leaves an action that is not one of its items for later.
    MacroFile lines("# heading\r\n\r\nkey 13\r\npopup \"&Display\" \"&WireFrame\"");
    EXPECT_FALSE(lines.next({Waiting::Kind::Popup}).has_value());
    EXPECT_TRUE(std::holds_alternative<macro::Key>(*lines.next({})));
    EXPECT_EQ(lines.where(), "line 3");
    EXPECT_TRUE(lines.next({Waiting::Kind::Popup}).has_value());
    EXPECT_FALSE(lines.next({}).has_value());
}

TEST(MacroFile, NamesTheLineItCannotRead) {
    size_t handedOut = 0;
    MacroFile endlessLine = endless("x", handedOut);
    EXPECT_EQ(unreadable(endlessLine), "line 1: longer than 1048576 bytes");
    EXPECT_LE(handedOut, MacroFile::maxLineBytes + 128 * 1024);
    MacroFile failing([](std::span<char>) -> size_t {
        throw std::system_error(std::make_error_code(std::errc::io_error));
    });
    EXPECT_EQ(unreadable(failing), "line 1: input/output error");
}

// Neither a replay nor a recording uses anything but a regular file, which a replay reads no
// further than the size it had when opened.
TEST(MacroFile, OpensAndMakesRegularFilesOnly) {
    TempFolder folder;
    const fs::path pipe = folder.path / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    fs::create_symlink("/dev/zero", folder.path / "zero");
    const std::vector<std::pair<fs::path, std::error_code>> refused = {
        {folder.path, std::make_error_code(std::errc::is_a_directory)},
        {pipe, FileError::notRegularFile},
        {folder.path / "zero", FileError::notRegularFile},
        {"/dev/full", FileError::notRegularFile},
        {folder.path / "missing", std::make_error_code(std::errc::no_such_file_or_directory)},
    };
    FileSystem& files = PosixFileSystem::instance();
    const auto refusal = [](auto make) {
        try {
            make();
        } catch (const std::system_error& e) {
            return e.code();
        }
        return std::error_code();
    };
    for (const auto& [path, error] : refused) {
        EXPECT_EQ(refusal([&] { MacroFile::open(files, path); }), error) << path;
        if (path.filename() != "missing") { // a recording makes it
            EXPECT_EQ(refusal([&] { MacroWriter::create(files, path); }), error) << path;
        }
    }

    const fs::path path = folder.path / "a.macro";
    std::ofstream(path) << "an old macro longer than what replaces it " << std::string(99, 'x');
    MacroWriter(MacroWriter::create(files, path)).write(macro::Key{13});
    MacroFile macro = MacroFile::open(files, path);
    EXPECT_TRUE(std::holds_alternative<macro::Key>(*macro.next({})));
    EXPECT_FALSE(macro.next({}).has_value());

    FaultyFileSystem full;
    full.failAll(FaultyFileSystem::Call::write, std::errc::no_space_on_device);
    EXPECT_EQ(refusal([&] { MacroWriter::create(full, path); }), std::errc::no_space_on_device);
}
