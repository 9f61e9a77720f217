#include "io/FileOverwriter.h"

#include "support/FaultyFileSystem.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

using Bytes = std::vector<uint8_t>;

Bytes contentOf(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// Writes in place, so that the file keeps its name, links and status.
void put(const std::string& file, const Bytes& bytes) {
    std::ofstream(file, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
}

// Several write blocks long, so that a write can fail half-way.
const Bytes oldContent(200 * 1024, 'o');
const Bytes newContent(150 * 1024, 'n');

} // namespace

TEST(FileOverwriter, AnyFailingCallLeavesTheOldFileAndNoPartialFile) {
    TempFolder folder;
    for (const bool exists : {true, false}) {
        const std::string file = folder.file(exists ? "old.bin" : "new.bin");
        FaultyFileSystem counting;
        if (exists) {
            put(file, oldContent);
        }
        ASSERT_EQ(FileOverwriter(counting).overwrite(file, newContent), std::error_code());
        for (size_t failing = 0; failing < counting.callCount(); ++failing) {
            if (exists) {
                put(file, oldContent);
            } else {
                fs::remove(file);
            }
            FaultyFileSystem faulty;
            faulty.failCallNumber(failing);
            const bool written = !FileOverwriter(faulty).overwrite(file, newContent);
            if (written) {
                EXPECT_EQ(contentOf(file), newContent) << failing;
            } else if (exists) {
                EXPECT_EQ(contentOf(file), oldContent) << failing;
            } else {
                EXPECT_FALSE(fs::exists(file)) << failing;
            }
            EXPECT_EQ(folder.entries().size(), exists ? 1u : size_t{written}) << failing;
        }
        fs::remove(file);
    }
}

TEST(FileOverwriter, KeepsPermissionsOwnerAndLinksAndCleansUpAfterADeadSave) {
    TempFolder folder;
    const std::string file = folder.file("scene.tvm");
    put(file, oldContent);
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    const bool root = ::geteuid() == 0; // only the superuser may give a file away
    if (root) {
        ASSERT_EQ(::chown(file.c_str(), 4321, 4321), 0);
    }
    // Temporaries of a dead save (its process beyond pid_max), of a failed save of ours, of a
    // living process and of another file; the first two are cleaned up.
    const std::pair<std::string, bool> temporaries[] = {
        {".scene.tvm.4194999.korvan-save", false},
        {".scene.tvm." + std::to_string(::getpid()) + ".korvan-save", false},
        {".scene.tvm.1.korvan-save", true},
        {".other.tvm.4194999.korvan-save", true}};
    for (const auto& [temporary, stays] : temporaries) {
        put(folder.file(temporary), {});
    }
    PosixFileSystem& system = PosixFileSystem::instance();
    ASSERT_EQ(FileOverwriter(system).overwrite(file, newContent), std::error_code());
    struct stat info {};
    ASSERT_EQ(::stat(file.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777, 0640u);
    if (root) {
        EXPECT_EQ(info.st_uid, 4321u);
        EXPECT_EQ(info.st_gid, 4321u);
    }
    for (const auto& [temporary, stays] : temporaries) {
        EXPECT_EQ(fs::exists(folder.file(temporary)), stays) << temporary;
    }

    // A second name sees the new content, cut to its length.
    const std::string second = folder.file("second name.tvm");
    fs::create_hard_link(file, second);
    const Bytes shorter(10, 's');
    ASSERT_EQ(FileOverwriter(system).overwrite(file, shorter), std::error_code());
    EXPECT_TRUE(fs::equivalent(file, second));
    EXPECT_EQ(contentOf(second), shorter);
    fs::remove(second);

    // A link stays a link to the file it names.
    const std::string link = folder.file("link.tvm");
    fs::create_symlink("scene.tvm", link);
    ASSERT_EQ(FileOverwriter(system).overwrite(link, oldContent), std::error_code());
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(contentOf(file), oldContent);
    // Also when the file it names does not exist yet.
    const std::string dangling = folder.file("dangling.tvm");
    fs::create_symlink("made through the link.tvm", dangling);
    ASSERT_EQ(FileOverwriter(system).overwrite(dangling, newContent), std::error_code());
    EXPECT_TRUE(fs::is_symlink(dangling));
    EXPECT_EQ(contentOf(folder.file("made through the link.tvm")), newContent);
}

// Where no temporary may be made the file is written in place (the full disk's test below);
// a new file cannot be, nor a file the user may not change, nor one where the disk is full.
TEST(FileOverwriter, RefusesWhatCannotBeWrittenInPlace) {
    TempFolder folder;
    const std::string file = folder.file("scene.tvm");
    put(file, oldContent);
    // The root user may create files in any folder, so the refusal is injected.
    FaultyFileSystem readOnlyFolder;
    readOnlyFolder.failAll(FaultyFileSystem::Call::createNew, std::errc::permission_denied);
    EXPECT_EQ(FileOverwriter(readOnlyFolder).overwrite(folder.file("new.tvm"), newContent),
              std::errc::permission_denied);
    FaultyFileSystem readOnlyFile;
    readOnlyFile.failAll(FaultyFileSystem::Call::openToWrite, std::errc::permission_denied);
    EXPECT_EQ(FileOverwriter(readOnlyFile).overwrite(file, newContent),
              std::errc::permission_denied);
    FaultyFileSystem fullDisk;
    fullDisk.failAll(FaultyFileSystem::Call::createNew, std::errc::no_space_on_device);
    EXPECT_EQ(FileOverwriter(fullDisk).overwrite(file, newContent), std::errc::no_space_on_device);
    EXPECT_EQ(contentOf(file), oldContent);
    EXPECT_EQ(FileOverwriter(PosixFileSystem::instance()).overwrite(folder.path.string(), {}),
              std::errc::is_a_directory);
    EXPECT_EQ(folder.entries().size(), 1u);
}

TEST(FileOverwriter, AFileTheDiskWouldNotKeepIsNotSaved) {
    // The data written may be lost when the disk refuses to sync it: through a temporary, the
    // old file stays; in place, the save at least says that it failed.
    TempFolder folder;
    const std::string file = folder.file("scene.tvm");
    for (const bool inPlace : {false, true}) {
        put(file, oldContent);
        FaultyFileSystem disk;
        disk.failAll(FaultyFileSystem::Call::sync, std::errc::io_error);
        if (inPlace) {
            disk.failAll(FaultyFileSystem::Call::createNew, std::errc::permission_denied);
        }
        EXPECT_EQ(FileOverwriter(disk).overwrite(file, newContent), std::errc::io_error) << inPlace;
        EXPECT_EQ(contentOf(file), inPlace ? newContent : oldContent) << inPlace;
    }
}

TEST(FileOverwriter, AFullDiskStopsASaveInPlaceBeforeItChangesTheFile) {
    TempFolder folder;
    const std::string file = folder.file("scene.tvm");
    const std::string second = folder.file("second name.tvm");
    const Bytes larger(250 * 1024, 'l');
    const uint64_t growth = larger.size() - oldContent.size();
    for (const bool linked : {true, false}) {
        for (const uint64_t room : {growth - 1, growth}) {
            put(file, oldContent);
            FaultyFileSystem disk;
            disk.leaveRoom(room);
            if (linked) {
                fs::create_hard_link(file, second);
            } else {
                disk.failAll(FaultyFileSystem::Call::createNew, std::errc::permission_denied);
            }
            const std::error_code error = FileOverwriter(disk).overwrite(file, larger);
            const bool fits = room == growth;
            EXPECT_EQ(error, fits ? std::error_code()
                                  : std::make_error_code(std::errc::no_space_on_device))
                << linked << room;
            EXPECT_EQ(contentOf(file), fits ? larger : oldContent) << linked << room;
            if (linked) {
                EXPECT_TRUE(fs::equivalent(file, second)) << room;
                fs::remove(second);
            }
            EXPECT_EQ(folder.entries().size(), 1u) << linked << room;
        }
    }
}
