#include "qt/QtSettingsStore.h"

#include "support/TempFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <random>

TEST(QtSettingsStore, ValuesComeBackAsStoredAndOtherwiseAsNothing) {
    TempFolder folder; // never the user's own settings
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       QString::fromStdString(folder.path.string()));
    {
        QtSettingsStore store;
        store.setString("RecentFiles/1", "/home/ann/a, b.tvm");
        store.setInt("Window/X", -12);
        store.setBool("RememberSettings", true);
    }
    const QtSettingsStore store;
    EXPECT_EQ(store.getString("RecentFiles/1"), "/home/ann/a, b.tvm");
    EXPECT_EQ(store.getInt("Window/X"), -12);
    EXPECT_EQ(store.getBool("RememberSettings"), true);
    EXPECT_EQ(store.getBool("Window/X"), std::nullopt);

    const auto write = [&](const std::string& bytes) {
        std::ofstream(folder.file("Korvan/Korvan.conf"), std::ios::binary) << bytes;
    };
    write("[General]\nRememberSettings=1\n[Window]\nX=12.5\nY=a, b\n"
          "Width=@Variant(\\0\\0\\0\\x7f\\0\\0\\0\\x6)\n");
    const QtSettingsStore foreign;
    EXPECT_EQ(foreign.getBool("RememberSettings"), std::nullopt);
    EXPECT_EQ(foreign.getInt("Window/X"), std::nullopt);
    EXPECT_EQ(foreign.getString("Window/Y"), std::nullopt);
    EXPECT_EQ(foreign.getInt("Window/Width"), std::nullopt);

    std::mt19937 random(24);
    for (int round = 0; round < 20; ++round) {
        std::string junk(4000, '\0');
        for (char& c : junk) {
            c = static_cast<char>(random());
        }
        write(junk);
        EXPECT_EQ(QtSettingsStore().getBool("RememberSettings"), std::nullopt) << round;
    }
}
