#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>
#include <vector>

// A fresh folder per test, named after the test, removed with everything in it afterwards.
struct TempFolder {
    std::filesystem::path path =
        std::filesystem::temp_directory_path() /
        ("korvan-" + std::to_string(::getpid()) + "-" +
         ::testing::UnitTest::GetInstance()->current_test_info()->test_suite_name() + "-" +
         ::testing::UnitTest::GetInstance()->current_test_info()->name());
    TempFolder() { std::filesystem::create_directories(path); }
    ~TempFolder() { std::filesystem::remove_all(path); }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    std::string file(const std::string& name) const { return (path / name).string(); }
    std::vector<std::filesystem::path> entries() const {
        return {std::filesystem::directory_iterator(path), {}};
    }
};
