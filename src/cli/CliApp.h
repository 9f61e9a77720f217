#pragma once

#include "cli/CliOptions.h"

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

class Transformed3d;

// korvan-cli: renders or describes a mesh file headless, through the editor's own pipeline.
class CliApp {
public:
    // Runs one command line (the arguments after the program name): results go to out, an
    // error as one line "korvan-cli: ..." to err. Returns the exit status; never throws.
    int run(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

private:
    static std::vector<std::shared_ptr<Transformed3d>> loadScene(const std::string& path);
    static void render(const CliOptions& options);
    static void info(const CliOptions& options, std::ostream& out);
};
