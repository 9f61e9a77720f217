#include "cli/CliOptions.h"

#include "cli/CliError.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <filesystem>

namespace {

// Larger pictures would only exhaust memory.
constexpr int maxSide = 16384;

CliError usageError(const std::string& message) {
    return CliError(message, CliError::usage);
}

CliError badValue(const std::string& option, const std::string& value, const std::string& want) {
    return usageError("invalid value '" + value + "' for " + option + " (expected " + want + ")");
}

int parseView(const std::string& value) {
    if (value == "top") {
        return KorvanOpsConsts::viewTop;
    }
    if (value == "side") {
        return KorvanOpsConsts::viewSide;
    }
    if (value == "front") {
        return KorvanOpsConsts::viewFront;
    }
    if (value == "iso") {
        return KorvanOpsConsts::viewIsometric;
    }
    throw badValue("--view", value, "top, side, front or iso");
}

// A whole number from 1 to maxSide, digits only; false for anything else.
bool parseSide(const std::string& text, int& side) {
    if (text.empty() || !std::all_of(text.begin(), text.end(),
                                     [](unsigned char c) { return std::isdigit(c) != 0; })) {
        return false;
    }
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), side);
    return error == std::errc() && end == text.data() + text.size() && side >= 1 && side <= maxSide;
}

void parseSize(const std::string& value, int& width, int& height) {
    const auto x = value.find('x');
    if (x == std::string::npos || !parseSide(value.substr(0, x), width) ||
        !parseSide(value.substr(x + 1), height)) {
        throw badValue("--size", value, "WIDTHxHEIGHT, each 1 to " + std::to_string(maxSide));
    }
}

float parseZoom(const std::string& value) {
    float zoom = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), zoom);
    if (value.empty() || error != std::errc() || end != value.data() + value.size() ||
        !std::isfinite(zoom) || zoom <= 0) {
        throw badValue("--zoom", value, "a positive number");
    }
    return zoom;
}

CliOptions::Format outputFormat(const std::string& output) {
    std::string extension = std::filesystem::path(output).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (extension == ".png") {
        return CliOptions::Format::Png;
    }
    if (extension == ".bmp") {
        return CliOptions::Format::Bmp;
    }
    if (extension == ".svg") {
        return CliOptions::Format::Svg;
    }
    throw usageError("output file '" + output + "' must end in .png, .bmp or .svg");
}

} // namespace

CliOptions CliOptions::parse(const std::vector<std::string>& args) {
    CliOptions options;
    if (std::any_of(args.begin(), args.end(),
                    [](const std::string& a) { return a == "-h" || a == "--help"; })) {
        return options;
    }
    if (args.empty()) {
        throw usageError("no command given (try --help)");
    }
    if (args[0] == "render") {
        options.command = Command::Render;
    } else if (args[0] == "info") {
        options.command = Command::Info;
    } else {
        throw usageError("unknown command '" + args[0] + "' (try --help)");
    }

    for (size_t i = 1; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (arg.size() < 2 || arg[0] != '-') {
            if (!options.scene.empty()) {
                throw usageError("unexpected argument '" + arg + "'");
            }
            options.scene = arg;
            continue;
        }
        if (options.command == Command::Info) {
            throw usageError("info takes no options, but was given '" + arg + "'");
        }
        const auto value = [&]() -> const std::string& {
            if (i + 1 >= args.size()) {
                throw usageError("option " + arg + " needs a value");
            }
            return args[++i];
        };
        if (arg == "-o") {
            options.output = value();
        } else if (arg == "--view") {
            options.view = parseView(value());
        } else if (arg == "--parallel") {
            options.parallel = true;
        } else if (arg == "--size") {
            parseSize(value(), options.width, options.height);
        } else if (arg == "--zoom") {
            options.zoom = parseZoom(value());
        } else if (arg == "--wireframe") {
            options.wireframe = true;
        } else if (arg == "--no-backface") {
            options.noBackface = true;
        } else if (arg == "--no-grid") {
            options.noGrid = true;
        } else if (arg == "--no-axes") {
            options.noAxes = true;
        } else {
            throw usageError("unknown option '" + arg + "' (try --help)");
        }
    }

    if (options.scene.empty()) {
        throw usageError("no scene file given (try --help)");
    }
    if (options.command == Command::Render) {
        if (options.output.empty()) {
            throw usageError("render needs an output file: -o OUT.png, OUT.bmp or OUT.svg");
        }
        options.format = outputFormat(options.output);
    }
    return options;
}

std::string CliOptions::helpText() {
    return R"(Usage: korvan-cli render SCENE.tvm -o OUT [options]
       korvan-cli info SCENE.tvm
       korvan-cli -h | --help

Draws or describes a Tavrin Mesh File (.tvm) without opening the editor.

Commands:
  render  Draws the file's solids the way one viewport of the editor draws them,
          grid and axes included, and writes the picture to OUT. OUT ends in
          .png or .bmp for an image, or .svg for a drawing with one element per
          drawing call. With the defaults (--view iso, 800x600) the picture is
          what the editor's start-up viewport of that size shows.
  info    Writes one line of JSON on standard output: the file name as given,
          the number of objects and, per object, its points and faces:
            {"file": "a.tvm", "objects": 1, "items": [{"points": 20, "faces": 18}]}

Options (render only; they may come before or after SCENE.tvm):
  -o OUT         output file ending in .png, .bmp or .svg (required)
  --view VIEW    top, side, front or iso (default iso)
  --parallel     parallel projection (default perspective)
  --size WxH     picture size in pixels (default 800x600)
  --zoom Z       pixels per world unit at the target, a positive number
                 (default 200)
  --wireframe    outline the faces instead of filling them
  --no-backface  backface removal off: faces are painted in list order, and with
                 --wireframe the faces turned away are outlined too
  --no-grid      leave out the grid
  --no-axes      leave out both axes glyphs (zero axes and reference axes)
  -h, --help     show this text and exit

The scene's name must end in .tvm and consist of printable ASCII characters,
as the editor's own file dialogs produce.

Exit status:
  0  success
  1  the scene cannot be read (missing, not a regular file, not a .tvm
     name, corrupt) or the output or standard output cannot be written;
     an existing OUT is then left as it was
  2  bad command line: unknown command or option, bad or missing value,
     missing scene or output, wrong output extension
Every error is reported as one line "korvan-cli: ..." on standard error.
)";
}
