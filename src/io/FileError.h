#pragma once

#include <string>
#include <system_error>
#include <type_traits>

// Failures of the program's own file logic, beside the system's error codes.
enum class FileError {
    notRegularFile = 1,
    corrupt,
    unstorableValue,
};

const std::error_category& fileErrorCategory();

inline std::error_code make_error_code(FileError error) {
    return {static_cast<int>(error), fileErrorCategory()};
}

template <> struct std::is_error_code_enum<FileError> : std::true_type {};
