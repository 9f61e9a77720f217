#include "io/FileNames.h"

std::string FileNames::clean(const std::string& name, const std::string& extension) {
    std::string result = name;
    for (char& c : result) {
        const auto code = static_cast<unsigned char>(c);
        if (code < ' ' || code > '~') {
            c = ' ';
        }
    }
    const size_t first = result.find_first_not_of(' ');
    result = first == std::string::npos
                 ? std::string()
                 : result.substr(first, result.find_last_not_of(' ') - first + 1);
    if (!result.ends_with(extension)) {
        result += extension;
    }
    return result;
}
