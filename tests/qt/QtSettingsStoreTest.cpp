#include "qt/QtSettingsStore.h"

#include "support/TempFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>

namespace {

// Settings read from and written to the test's folder, never the user's.
struct Store {
    TempFolder folder;
    std::string file = folder.file("Korvan/Korvan.conf");
    Store() {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           QString::fromStdString(folder.path.string()));
        std::filesystem::create_directories(folder.path / "Korvan");
    }
    void write(const std::string& bytes) const { std::ofstream(file, std::ios::binary) << bytes; }
};

} // namespace

TEST(QtSettingsStore, ValuesComeBackAsStoredAndOtherwiseAsNothing) {
    Store s;
    {
        QtSettingsStore store;
        store.setString("RecentFiles/1", "/home/ann/a, b.tvm");
        store.setInt("Window/X", -12);
        store.setBool("RememberSettings", true);
    }
    QtSettingsStore store;
    EXPECT_EQ(store.getString("RecentFiles/1"), "/home/ann/a, b.tvm");
    EXPECT_EQ(store.getInt("Window/X"), -12);
    EXPECT_EQ(store.getBool("RememberSettings"), true);
    EXPECT_EQ(store.getInt("RememberSettings"), std::nullopt);
    EXPECT_EQ(store.getBool("Window/X"), std::nullopt);
    store.remove("Window/X");
    EXPECT_EQ(store.getInt("Window/X"), std::nullopt);

    s.write("[General]\nRememberSettings=1\n[Window]\nX=12.5\nY=99999999999\nWidth=a, b\n"
            "Height=@Variant(\\0\\0\\0\\x7f\\0\\0\\0\\x6)\n[RecentFiles]\n1=a, b\n");
    const QtSettingsStore foreign;
    EXPECT_EQ(foreign.getBool("RememberSettings"), std::nullopt);
    EXPECT_EQ(foreign.getInt("Window/X"), std::nullopt);
    EXPECT_EQ(foreign.getInt("Window/Y"), std::nullopt);
    EXPECT_EQ(foreign.getInt("Window/Width"), std::nullopt);
    EXPECT_EQ(foreign.getInt("Window/Height"), std::nullopt);
    EXPECT_EQ(foreign.getString("RecentFiles/1"), std::nullopt);

    std::mt19937 random(24);
    for (int round = 0; round < 20; ++round) {
        std::string junk(4000, '\0');
        for (char& c : junk) {
            c = static_cast<char>(random());
        }
        s.write(junk);
        const QtSettingsStore damaged;
        EXPECT_EQ(damaged.getBool("RememberSettings"), std::nullopt) << round;
    }
}
