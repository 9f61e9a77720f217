#include "app/RecentFiles.h"

#include "app/MainMenu.h"
#include "io/PosixFileSystem.h"
#include "support/MemorySettings.h"
#include "support/ScriptedPrompts.h"
#include "support/TempFolder.h"

#include <fstream>
#include <gtest/gtest.h>

TEST(RecentFiles, NewestFirstOnceByCanonicalPathTenAtMostAndAGoneOneTakenOff) {
    using namespace std::string_literals;
    TempFolder folder;
    MemorySettings store; // only absolute paths of printable characters are taken, once
    store.values = {{"RecentFiles/1", 5},
                    {"RecentFiles/2", "relative"s},
                    {"RecentFiles/3", "/bad\nline"s},
                    {"RecentFiles/4", "/a&b"s},
                    {"RecentFiles/5", "/a&b"s}};
    MainMenu menus;
    ScriptedPrompts prompts;
    std::vector<std::string> opened;
    RecentFiles recent(store, PosixFileSystem::instance(), menus,
                       [&](const std::string& path) { opened.push_back(path); });
    EXPECT_EQ(recent.paths(), std::vector<std::string>{"/a&b"});
    EXPECT_EQ(menus.item("mnuRecentFile1").getCaption(), "&1 /a&&b");
    std::vector<std::string> files;
    for (int i = 0; i < 12; ++i) {
        std::ofstream(folder.file(std::to_string(i))) << "x";
        files.push_back(std::filesystem::canonical(folder.file(std::to_string(i))));
        recent.add(files.back());
    }
    std::filesystem::create_directory(folder.path / "sub");
    recent.add(folder.file("sub/../5"));
    ASSERT_EQ(recent.paths().size(), 10u);
    EXPECT_EQ(recent.paths()[0], files[5]);
    EXPECT_EQ(recent.paths()[9], files[2]);
    EXPECT_EQ(menus.item("mnuRecentFile10").getCaption(), "1&0 " + files[2]);

    std::filesystem::remove(files[11]);
    menus.item("mnuRecentFile2").click();
    menus.item("mnuRecentFile2").click();
    EXPECT_EQ(opened, std::vector<std::string>{files[10]});
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text,
              files[11] + " no longer exists; it has been taken off the recent files.");
    EXPECT_EQ(store.getString("RecentFiles/2"), files[10]);
    EXPECT_EQ(store.values.count("RecentFiles/10"), 0u);

    menus.item("mnuRecentClear").click();
    EXPECT_TRUE(store.values.empty());
    EXPECT_FALSE(menus.item("mnuRecentFile1").isVisible());
}
