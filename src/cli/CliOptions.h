#pragma once

#include "render/KorvanOpsConsts.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The command line of korvan-cli, parsed and checked before any file is touched.
struct CliOptions {
    enum class Command { Help, Version, Render, Info, Extrude, Replay, Convert };
    enum class Format { Png, Bmp, Svg };

    // What the extrusion dialog's controls are to hold; the texts are typed in as given, so
    // that the dialog itself judges them.
    struct Extrusion {
        // The dialog's orientation options, in their order.
        enum class Orientation { In, Out, Split };

        std::string length = "1";
        std::string subdivisions = "1";
        Orientation orientation = Orientation::In;
        bool capEnds = true;
        std::vector<std::string> transforms;
        // Packed colours and scroll-bar values; nothing leaves the group's check box unchecked.
        std::optional<int32_t> ambient;
        std::optional<int32_t> diffuse;
        std::optional<int> specularK;
        std::optional<int> specularN;
        std::string addTo; // the scene whose objects come first, or ""
    };

    Command command = Command::Help;
    // the scene (render, info), the profile (extrude), the macro (replay) or the mesh (convert)
    std::string input;
    std::string output;  // render, extrude and convert; for replay the scene to save, or ""
    std::string svgDir;  // replay: where each viewport's drawing goes, or ""
    std::string sandbox; // replay: the folder every file the macro names is taken from, or ""
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
    bool ascii = false;        // convert: an .stl output in ASCII
    std::vector<int> selected; // convert: the solids to write (from 1), or all when empty
    Extrusion extrusion;

    // The arguments after the program name. Throws CliError with the usage status for
    // anything it cannot make sense of; -h or --help anywhere asks for the help text, and
    // --version anywhere else for the version.
    static CliOptions parse(const std::vector<std::string>& args);
    static std::string helpText();
};
