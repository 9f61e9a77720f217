#pragma once

#include <string>

// The common open/save file dialog. Both opening and saving use it, so it accepts
// names of files that do not exist yet.
class FileChooser {
public:
    virtual ~FileChooser() = default;
    // The chosen path, or an empty string when the user cancelled.
    // filter is a list of "description|pattern" pairs joined by "|".
    virtual std::string chooseFile(const std::string& title, const std::string& filter) = 0;
};
