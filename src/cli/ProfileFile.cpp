#include "cli/ProfileFile.h"

#include "cli/CliError.h"
#include "geometry/NumberText.h"
#include "io/FileBytes.h"
#include "scene/Profile.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

std::vector<std::string_view> words(std::string_view line) {
    std::vector<std::string_view> found;
    size_t at = 0;
    while (at < line.size()) {
        if (isBlank(line[at])) {
            ++at;
            continue;
        }
        size_t end = at;
        while (end < line.size() && !isBlank(line[end])) {
            ++end;
        }
        found.push_back(line.substr(at, end - at));
        at = end;
    }
    return found;
}

} // namespace

std::shared_ptr<Profile> ProfileFile::read(FileSystem& files, const std::string& path) {
    const CliError tooLarge("cannot read " + CliError::quoted(path) +
                                ": a profile file may not exceed " + std::to_string(maxBytes) +
                                " bytes",
                            CliError::failure);
    // Asked first, so that a huge file is refused before anything is read.
    FileSystem::Status status;
    if (!files.status(path, status) && status.kind == FileSystem::Kind::Regular &&
        status.size > maxBytes) {
        throw tooLarge;
    }
    std::vector<uint8_t> bytes;
    if (const std::error_code error = FileBytes::read(files, path, 0, bytes)) {
        throw CliError("cannot open " + CliError::quoted(path) + ": " + CliError::reason(error),
                       CliError::failure);
    }
    if (bytes.size() > maxBytes) { // it grew since it was asked
        throw tooLarge;
    }

    return parse({reinterpret_cast<const char*>(bytes.data()), bytes.size()}, path);
}

std::shared_ptr<Profile> ProfileFile::parse(std::string_view text, const std::string& path) {
    const std::string name = CliError::quoted(path);
    const auto refuse = [&](const std::string& where, const std::string& what) {
        return CliError("cannot read " + name + where + ": " + what, CliError::failure);
    };
    auto profile = std::make_shared<Profile>();
    size_t lineNumber = 0;
    for (size_t start = 0; start < text.size();) {
        const size_t end = std::min(text.find('\n', start), text.size());
        const std::vector<std::string_view> values = words(text.substr(start, end - start));
        start = end + 1;
        ++lineNumber;
        if (values.empty()) {
            continue;
        }
        const std::string where = " line " + std::to_string(lineNumber);
        if (values.size() != 3) {
            throw refuse(where, "expected three numbers x y z, found " +
                                    std::to_string(values.size()) + " values");
        }
        if (profile->getPointCount() == maxPoints) {
            throw refuse(where,
                         "a profile may hold at most " + std::to_string(maxPoints) + " points");
        }
        PointRecord record;
        record.coord.w = 1.0f;
        for (int axis = 1; axis <= 3; ++axis) {
            const std::optional<float> value =
                NumberText::parseSingle(values[static_cast<size_t>(axis - 1)]);
            if (!value) {
                throw refuse(where, "value " + std::to_string(axis) +
                                        " is not a number that a single float can hold");
            }
            record.coord(axis) = *value;
        }
        profile->addPointRecord(record);
    }
    if (profile->getPointCount() < minPoints) {
        throw refuse("", "a profile needs at least " + std::to_string(minPoints) +
                             " points (a closed profile repeats its first point), found " +
                             std::to_string(profile->getPointCount()));
    }
    return profile;
}
