#include "cli/CliOptions.h"

#include "cli/CliError.h"
#include "geometry/PackedColor.h"
#include "io/MeshFiles.h"
#include "io/TavrinMeshIO.h"
#include "modelling/Tokens.h"

#include <algorithm>
#include <array>
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

// A whole number from low to high, digits only; false for anything else.
bool parseWhole(const std::string& text, int low, int high, int& number) {
    if (text.empty() || !std::all_of(text.begin(), text.end(),
                                     [](unsigned char c) { return std::isdigit(c) != 0; })) {
        return false;
    }
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && number >= low &&
           number <= high;
}

void parseSize(const std::string& value, int& width, int& height) {
    const auto x = value.find('x');
    if (x == std::string::npos || !parseWhole(value.substr(0, x), 1, maxSide, width) ||
        !parseWhole(value.substr(x + 1), 1, maxSide, height)) {
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

int32_t parseColor(const std::string& option, const std::string& value) {
    std::array<int, 3> channels{};
    std::string rest = value;
    for (size_t i = 0; i < channels.size(); ++i) {
        const size_t comma = i + 1 < channels.size() ? rest.find(',') : rest.size();
        if (comma == std::string::npos || !parseWhole(rest.substr(0, comma), 0, 255, channels[i])) {
            throw badValue(option, value, "R,G,B, each a whole number 0 to 255");
        }
        rest.erase(0, comma + 1);
    }
    return PackedColor::pack(channels[0], channels[1], channels[2]);
}

int parsePercent(const std::string& option, const std::string& value) {
    int number = 0;
    if (!parseWhole(value, 0, 100, number)) {
        throw badValue(option, value, "a whole number 0 to 100");
    }
    return number;
}

// The dialog's own picker makes only these three kinds; the dialog passes over any other
// name silently, which on a command line would hide a typing error.
const std::string& checkTransform(const std::string& value) {
    std::string rest = value;
    const std::string name = Tokens::getNextToken(rest, "(");
    if (name != "Translate" && name != "Rotate" && name != "Scale") {
        throw badValue("--transform", value, "Translate(X,Y,Z), Rotate(X,Y,Z) or Scale(X,Y,Z)");
    }
    return value;
}

CliOptions::Extrusion::Orientation parseOrientation(const std::string& value) {
    using Orientation = CliOptions::Extrusion::Orientation;
    if (value == "in") {
        return Orientation::In;
    }
    if (value == "out") {
        return Orientation::Out;
    }
    if (value == "split") {
        return Orientation::Split;
    }
    throw badValue("--mode", value, "in, out or split");
}

// "1,3": solid numbers from 1, as many as given, each at most the largest int.
std::vector<int> parseSolidNumbers(const std::string& value) {
    std::vector<int> numbers;
    size_t start = 0;
    while (true) {
        const size_t comma = std::min(value.find(',', start), value.size());
        int number = 0;
        const char* first = value.data() + start;
        const char* last = value.data() + comma;
        const auto [end, error] = std::from_chars(first, last, number);
        if (error != std::errc() || end != last || number < 1) {
            throw badValue("--selected", value, "solid numbers from 1, such as 1,3");
        }
        numbers.push_back(number);
        if (comma == value.size()) {
            return numbers;
        }
        start = comma + 1;
    }
}

void checkConversion(const CliOptions& options) {
    using Format = MeshFiles::Format;
    if (!MeshFiles::isReadable(options.input)) {
        throw usageError("input file '" + options.input +
                         "' must end in .tvm, .obj, .ply, .stl, .off, .gltf, .glb or .3mf");
    }
    if (options.output.empty()) {
        throw usageError(
            "convert needs an output file: OUT.tvm, OUT.obj, OUT.ply, OUT.stl or OUT.3mf");
    }
    const std::optional<Format> out = MeshFiles::formatOf(options.output);
    if (!out) {
        throw usageError("output file '" + options.output +
                         "' must end in .tvm, .obj, .ply, .stl or .3mf");
    }
    if (options.ascii && *out != Format::Stl) {
        throw usageError("--ascii applies to an .stl output only");
    }
}

// Takes one option of render; false when arg is none of them. value() takes the option's value.
template <class Value>
bool parseRenderOption(const std::string& arg, Value value, CliOptions& options) {
    if (arg == "--view") {
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
        return false;
    }
    return true;
}

// Likewise for extrude.
template <class Value>
bool parseExtrudeOption(const std::string& arg, Value value, CliOptions::Extrusion& extrusion) {
    if (arg == "--length") {
        extrusion.length = value();
    } else if (arg == "--subdivisions") {
        extrusion.subdivisions = value();
    } else if (arg == "--mode") {
        extrusion.orientation = parseOrientation(value());
    } else if (arg == "--no-caps") {
        extrusion.capEnds = false;
    } else if (arg == "--transform") {
        extrusion.transforms.push_back(checkTransform(value()));
    } else if (arg == "--ambient") {
        extrusion.ambient = parseColor(arg, value());
    } else if (arg == "--diffuse") {
        extrusion.diffuse = parseColor(arg, value());
    } else if (arg == "--specular-k") {
        extrusion.specularK = parsePercent(arg, value());
    } else if (arg == "--specular-n") {
        extrusion.specularN = parsePercent(arg, value());
    } else if (arg == "--add-to") {
        extrusion.addTo = value();
    } else {
        return false;
    }
    return true;
}

} // namespace

CliOptions CliOptions::parse(const std::vector<std::string>& args) {
    CliOptions options;
    if (std::any_of(args.begin(), args.end(),
                    [](const std::string& a) { return a == "-h" || a == "--help"; })) {
        return options;
    }
    if (std::find(args.begin(), args.end(), "--version") != args.end()) {
        options.command = Command::Version;
        return options;
    }
    if (args.empty()) {
        throw usageError("no command given (try --help)");
    }
    if (args[0] == "render") {
        options.command = Command::Render;
    } else if (args[0] == "info") {
        options.command = Command::Info;
    } else if (args[0] == "extrude") {
        options.command = Command::Extrude;
    } else if (args[0] == "replay") {
        options.command = Command::Replay;
    } else if (args[0] == "convert") {
        options.command = Command::Convert;
    } else {
        throw usageError("unknown command '" + args[0] + "' (try --help)");
    }

    for (size_t i = 1; i < args.size(); ++i) {
        const std::string& arg = args[i];
        const bool convert = options.command == Command::Convert;
        if (arg.size() < 2 || arg[0] != '-') {
            if (options.input.empty()) {
                options.input = arg;
            } else if (convert && options.output.empty()) {
                options.output = arg;
            } else {
                throw usageError("unexpected argument '" + arg + "'");
            }
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
        if (convert) {
            if (arg == "--ascii") {
                options.ascii = true;
            } else if (arg == "--selected") {
                options.selected = parseSolidNumbers(value());
            } else {
                throw usageError("unknown option '" + arg + "' (try --help)");
            }
            continue;
        }
        if (arg == "-o") {
            options.output = value();
        } else if (options.command == Command::Replay) {
            if (arg != "--svg-dir" && arg != "--sandbox") {
                throw usageError("unknown option '" + arg + "' (try --help)");
            }
            (arg == "--svg-dir" ? options.svgDir : options.sandbox) = value();
        } else if (!(options.command == Command::Render
                         ? parseRenderOption(arg, value, options)
                         : parseExtrudeOption(arg, value, options.extrusion))) {
            throw usageError("unknown option '" + arg + "' (try --help)");
        }
    }

    const bool extrude = options.command == Command::Extrude;
    if (options.input.empty()) {
        throw usageError(extrude                              ? "no profile file given (try --help)"
                         : options.command == Command::Replay ? "no macro file given (try --help)"
                         : options.command == Command::Convert
                             ? "no mesh file given (try --help)"
                             : "no scene file given (try --help)");
    }
    if (options.command == Command::Convert) {
        checkConversion(options);
    }
    if (options.command == Command::Render) {
        if (options.output.empty()) {
            throw usageError("render needs an output file: -o OUT.png, OUT.bmp or OUT.svg");
        }
        options.format = outputFormat(options.output);
    }
    if (extrude && options.output.empty()) {
        throw usageError("extrude needs an output file: -o OUT.tvm");
    }
    if (extrude || (options.command == Command::Replay && !options.output.empty())) {
        // The writer cleans names as it does those from the file dialog; a name it would
        // change would make it write a different file.
        if (TavrinMeshIO::normalizeFileName(options.output) != options.output) {
            throw usageError("output file '" + options.output +
                             "' must end in .tvm and consist of printable ASCII characters");
        }
    }
    return options;
}

std::string CliOptions::helpText() {
    return R"(Usage: korvan-cli render SCENE.tvm -o OUT [options]
       korvan-cli info SCENE.tvm | MESH
       korvan-cli extrude PROFILE.txt -o OUT.tvm [extrusion options]
       korvan-cli replay MACRO.txt [-o OUT.tvm] [--svg-dir DIR] [--sandbox DIR]
       korvan-cli convert IN OUT [--ascii] [--selected N,...]
       korvan-cli -h | --help
       korvan-cli --version

Draws, describes, makes or converts Tavrin Mesh Files (.tvm) without opening the
editor.

Commands:
  render   Draws the file's solids the way one viewport of the editor draws them,
           grid and axes included, and writes the picture to OUT. OUT ends in
           .png or .bmp for an image, or .svg for a drawing with one element per
           drawing call. With the defaults (--view iso, 800x600) the picture is
           what the editor's start-up viewport of that size shows.
  info     Writes one line of JSON on standard output: the file name as given,
           the number of objects and, per object, its points and faces:
             {"file": "a.tvm", "objects": 1, "items": [{"points": 20, "faces": 18}]}
           A mesh file of another program (.stl, .off, .obj, .gltf, .glb, .3mf)
           is imported as the solids it would add to a scene, and described
           alike.
  extrude  Extrudes the profile in PROFILE.txt as the editor's Extrude dialog does
           with its controls set from the options, and saves the new solid to
           OUT.tvm (after the solids of --add-to, when given). PROFILE.txt holds
           one point per line, three numbers x y z separated by blanks, in the
           profile's order; a closed profile repeats its first point as its last
           line. Blank lines are skipped.
  replay   Plays a macro (recorded with korvan --record, or written by hand; see
           docs/MACROS.md) in the editor's logic without a screen: every command,
           dialog and answer runs as in the editor. -o OUT.tvm saves the solids
           the macro ends with, as File > Save would; --svg-dir DIR writes each
           viewport's last drawing to DIR/viewport0.svg ... viewport3.svg, in
           the form render writes; every output is complete before the first
           one is replaced. A line that does not fit what it meets (a dialog
           that is not open, a disabled menu item, an unknown control) stops the
           replay with a message naming the line, and nothing is written.
           The macro's own file dialogs open and save the files its lines
           name, File > Save included: a replay writes where the macro was
           recorded. --sandbox DIR takes every file the macro names from DIR
           instead (the file of the same name in DIR), reading and writing
           nothing elsewhere.
  convert  Reads the solids of IN (.tvm, .obj with its .mtl, or .ply) and
           writes them to OUT (.tvm, .obj, .ply, .stl or .3mf), the format chosen by
           each name's extension in any case. Every solid keeps its points in
           their order and its faces with their corners; .obj and .ply keep
           each face's eight surface coefficients exactly (as materials Ka, Kd,
           Ks, Ns in OUT.mtl, written beside OUT.obj as one with it; as float
           face properties in .ply, beside red green blue), so that converting
           back to .tvm gives the same file. Each .obj object ("o") and each
           .ply file is one solid, unless the .ply was written by convert.
           .stl (binary; --ascii for text) holds triangles only: each face is
           fanned from its first corner. .3mf holds the triangles of the same
           fans in millimetres, one object per solid, each triangle in its
           face's diffuse colour.

Options of render (they may come before or after SCENE.tvm):
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

Options of extrude (the dialog judges the texts of --length, --subdivisions
and --transform as it judges what is typed into it):
  -o OUT.tvm         output file (required)
  --length TEXT      extrusion length (default 1)
  --subdivisions TEXT
                     number of equal steps, 1 or more (default 1)
  --mode MODE        in (the normal's side), out (the other side) or split
                     (half to each side) (default in)
  --no-caps          leave both ends open
  --transform ENTRY  an additional transformation at every step: Translate,
                     Rotate (radians) or Scale with three values, such as
                     Rotate(0,0,0.6); each step applies the values divided by
                     the subdivisions, about the world origin. May be given
                     more than once; applied in order.
  --ambient R,G,B    ambient colour, each channel 0 to 255 (default: the
                     middle coefficient 0.5 for every channel)
  --diffuse R,G,B    diffuse colour, likewise
  --specular-k V     specular coefficient V percent, 0 to 100 (default 50)
  --specular-n V     specular exponent V, 0 to 100 (default 50)
  --add-to IN.tvm    a scene whose solids come first in OUT.tvm

Options of convert:
  --ascii            write the .stl output as text
  --selected N,...   write only these solids of IN, numbered from 1 in IN's
                     order, such as 1,3

  -h, --help     show this text and exit
  --version      show the version and exit

The scene's name must end in .tvm and consist of printable ASCII characters,
as the editor's own file dialogs produce; so must OUT.tvm.

Exit status:
  0  success
  1  the work failed: a scene, mesh, profile or macro cannot be read (missing,
     not a regular file, not a .tvm name, corrupt, malformed), the extrusion is
     refused (its message is the dialog's own), a macro stops, a folder given
     to --svg-dir or --sandbox is none, or an output or standard output cannot
     be written; every existing output is then left as it was
  2  bad command line: unknown command or option, bad or missing value,
     missing input or output, wrong output extension, a --selected number
     beyond the solids of IN
Every error is reported as one line "korvan-cli: ..." on standard error. What the
extrusion dialog reports without refusing (a normal parallel to the y axis, which
its vectors cannot convert) follows as "korvan-cli: warning: ..." lines.
)";
}
