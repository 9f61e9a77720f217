#pragma once

#include "cli/CliOptions.h"

#include <memory>
#include <string>
#include <vector>

class Profile;
class Transformed3d;

// The editor's extrusion dialog without a screen: its controls are set by name as the user
// would set them and Extrude is pressed, so the result is the one the editor makes.
namespace HeadlessExtrusion {

struct Result {
    std::shared_ptr<Transformed3d> extrusion;
    // What the editor would have shown on the way without stopping (the vector helpers'
    // notes on a direction they cannot convert, say).
    std::vector<std::string> messages;
};

// The new scene object; throws CliError with the dialog's message when it refuses.
Result run(const std::shared_ptr<Profile>& profile, const CliOptions::Extrusion& settings);

} // namespace HeadlessExtrusion
