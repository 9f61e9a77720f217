#pragma once

#include "platform/FileSystem.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

class Profile;

// A profile as a text file: one point per line, three numbers x y z separated by blanks (as
// typed numbers are read everywhere), the points in the profile's order; a closed profile
// repeats its first point as its last line. Blank lines are skipped, and a line may end in a
// carriage return.
namespace ProfileFile {

// The most points a sweep counts (in 16 bits), and a size no such file comes near.
constexpr int32_t maxPoints = 32767;
constexpr uint64_t maxBytes = 4 * 1024 * 1024;
// Fewer points make no closed profile.
constexpr int32_t minPoints = 3;

// The profile of the file, or throws CliError naming the file (and the line) and what is
// wrong with it.
std::shared_ptr<Profile> read(FileSystem& files, const std::string& path);
// The profile of a file's text; path names the file in messages.
std::shared_ptr<Profile> parse(std::string_view text, const std::string& path);

} // namespace ProfileFile
