#pragma once

#include <string>

// File names as the file dialog returns them are cleaned before use.
namespace FileNames {

// Every character outside " " to "~" becomes a blank (the dialog ends its path with a zero
// character), the name is trimmed of blanks, and extension is appended unless the name
// already ends in it, case-sensitively.
std::string clean(const std::string& name, const std::string& extension);

} // namespace FileNames
