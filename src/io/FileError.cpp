#include "io/FileError.h"

namespace {

class FileErrorCategory : public std::error_category {
public:
    const char* name() const noexcept override { return "korvan-file"; }
    std::string message(int value) const override {
        switch (static_cast<FileError>(value)) {
        case FileError::notRegularFile:
            return "not a regular file";
        case FileError::corrupt:
            return "the file might be corrupted or was improperly saved";
        case FileError::unstorableValue:
            return "a value cannot be stored: every number must be finite and every specular "
                   "exponent between -32768 and 32767";
        }
        return "unknown error";
    }
};

} // namespace

const std::error_category& fileErrorCategory() {
    static const FileErrorCategory category;
    return category;
}
