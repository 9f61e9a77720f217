#pragma once

#include "render/KorvanOpsConsts.h"

#include <string>
#include <vector>

// The command line of korvan-cli, parsed and checked before any file is touched.
struct CliOptions {
    enum class Command { Help, Render, Info };
    enum class Format { Png, Bmp, Svg };

    Command command = Command::Help;
    std::string scene;  // as the user wrote it
    std::string output; // render only
    Format format = Format::Png;
    int view = KorvanOpsConsts::viewIsometric;
    bool parallel = false;
    int width = 800;
    int height = 600;
    float zoom = 200.0f;
    bool wireframe = false;
    bool noBackface = false;
    bool noGrid = false;
    bool noAxes = false;

    // The arguments after the program name. Throws CliError with the usage status for
    // anything it cannot make sense of; -h or --help anywhere asks for the help text.
    static CliOptions parse(const std::vector<std::string>& args);
    static std::string helpText();
};
