#include "app/RecentFiles.h"

#include "app/MainMenu.h"
#include "io/PosixFileSystem.h"
#include "support/MemorySettings.h"
#include "support/ScriptedPrompts.h"
#include "support/TempFolder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace {

struct Recent {
    TempFolder folder;
    MemorySettings store;
    MainMenu menus;
    ScriptedPrompts prompts;
    std::vector<std::string> opened;

    RecentFiles make() { return make(menus); }
    RecentFiles make(MainMenu& shownIn) {
        return RecentFiles(store, PosixFileSystem::instance(), shownIn,
                           [this](const std::string& path) { opened.push_back(path); });
    }
    // A file of the folder, made; its canonical path.
    std::string file(const std::string& name) {
        std::ofstream(folder.file(name)) << "x";
        return std::filesystem::canonical(folder.file(name)).string();
    }
    const std::string& caption(int n) {
        return menus.item("mnuRecentFile" + std::to_string(n)).getCaption();
    }
};

} // namespace

TEST(RecentFiles, NewestFirstOnceByCanonicalPathTenAtMostKeptInTheSettings) {
    Recent r;
    RecentFiles recent = r.make();
    std::vector<std::string> files;
    for (int i = 0; i < 12; ++i) {
        files.push_back(r.file("f" + std::to_string(i) + ".tvm"));
        recent.add(files.back());
    }
    std::filesystem::create_directory(r.folder.path / "sub");
    recent.add(r.folder.file("sub/../f5.tvm"));
    ASSERT_EQ(recent.paths().size(), 10u);
    EXPECT_EQ(recent.paths()[0], files[5]);
    EXPECT_EQ(recent.paths()[1], files[11]);
    EXPECT_EQ(recent.paths()[9], files[2]);
    EXPECT_EQ(r.caption(1), "&1 " + files[5]);
    EXPECT_EQ(r.caption(10), "1&0 " + files[2]);
    EXPECT_TRUE(r.menus.item("mnuRecentFile10").isVisible());

    MainMenu otherMenus;
    const RecentFiles again = r.make(otherMenus);
    EXPECT_EQ(again.paths(), recent.paths());

    r.menus.item("mnuRecentFile2").click();
    EXPECT_EQ(r.opened, std::vector<std::string>{files[11]});
    std::filesystem::remove(files[11]);
    r.menus.item("mnuRecentFile2").click();
    EXPECT_EQ(r.opened.size(), 1u);
    ASSERT_EQ(r.prompts.messages().size(), 1u);
    EXPECT_EQ(r.prompts.messages()[0].text,
              files[11] + " no longer exists; it has been taken off the recent files.");
    EXPECT_EQ(recent.paths().size(), 9u);
    EXPECT_EQ(recent.paths()[1], files[10]);
    EXPECT_FALSE(r.menus.item("mnuRecentFile10").isVisible());
    EXPECT_EQ(r.store.values.count("RecentFiles/10"), 0u);

    r.menus.item("mnuRecentClear").click();
    EXPECT_TRUE(recent.paths().empty());
    EXPECT_FALSE(r.menus.item("mnuRecentFile1").isVisible());
    EXPECT_FALSE(r.menus.item("mnuRecentClear").isEnabled());
    EXPECT_TRUE(r.store.values.empty());
}

TEST(RecentFiles, EntriesOfTheSettingsThatAreNoAbsolutePrintablePathAreLeftOut) {
    Recent r;
    r.store.values = {{"RecentFiles/1", 5},
                      {"RecentFiles/2", std::string("relative.tvm")},
                      {"RecentFiles/3", std::string("/bad\nline.tvm")},
                      {"RecentFiles/4", std::string("/a&b.tvm")},
                      {"RecentFiles/5", std::string("/a&b.tvm")},
                      {"RecentFiles/6", std::string("")}};
    const RecentFiles recent = r.make();
    EXPECT_EQ(recent.paths(), std::vector<std::string>{"/a&b.tvm"});
    EXPECT_EQ(r.caption(1), "&1 /a&&b.tvm");
}
