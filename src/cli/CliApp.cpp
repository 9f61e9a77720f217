#include "cli/CliApp.h"

#include "app/SceneDocument.h"
#include "cli/CliError.h"
#include "cli/HeadlessExtrusion.h"
#include "cli/ProfileFile.h"
#include "cli/SvgCanvas.h"
#include "io/FileError.h"
#include "io/FileOverwriter.h"
#include "io/MeshFiles.h"
#include "io/PosixFileSystem.h"
#include "io/TavrinMeshIO.h"
#include "macro/HeadlessEditor.h"
#include "macro/MacroFile.h"
#include "macro/MessageText.h"
#include "qt/QtPictureWriter.h"
#include "render/ViewportRenderer.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"

#include <QGuiApplication>
#include <array>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <optional>
#include <ostream>
#include <system_error>

namespace {

std::string jsonString(const std::string& text) {
    std::string json = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            json += '\\';
            json += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned char>(c));
            json += escaped;
        } else {
            json += c;
        }
    }
    return json + "\"";
}

// The viewport record as the editor starts it (the record's defaults: zoom 200, perspective,
// eye distance 10, backface removal on, wireframe off, target at the origin), turned to the
// chosen standard view, then changed by the options.
ViewSpecs viewFor(const CliOptions& options) {
    ViewSpecs view;
    KorvanOpsConsts::setOrthoView(options.view, view);
    view.ProjectionType = options.parallel ? 0 : 1;
    view.zoom = options.zoom;
    view.wireFrame = options.wireframe;
    view.HideSurfaces = !options.noBackface;
    return view;
}

// The image canvas draws text, and fonts need a GUI application; no display is needed to
// paint into an image. Nothing when the process has an application already.
std::unique_ptr<QGuiApplication> guiApplication() {
    if (QCoreApplication::instance() != nullptr) {
        return nullptr;
    }
    static int argc = 1;
    static char name[] = "korvan-cli";
    static char* argv[] = {name, nullptr};
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // Qt's notes about its surroundings (no runtime directory on a headless machine, say)
    // are not failures of the tool, and the tool reports its own failures in one line of
    // its own; only a fatal error, which ends the process, gets through.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg) {
            std::fprintf(stderr, "korvan-cli: %s\n",
                         MessageText::oneLine(text.toStdString()).c_str());
        }
    });
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

CliApp::CliApp() : files_(PosixFileSystem::instance()) {}

int CliApp::run(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    try {
        const CliOptions options = CliOptions::parse(args);
        // errno says why standard output failed; cleared so that no older error is blamed.
        errno = 0;
        switch (options.command) {
        case CliOptions::Command::Help:
            out << CliOptions::helpText();
            break;
        case CliOptions::Command::Version:
            out << "korvan-cli " KORVAN_VERSION "\n";
            break;
        case CliOptions::Command::Render:
            render(options);
            break;
        case CliOptions::Command::Info:
            info(options, out);
            break;
        case CliOptions::Command::Extrude:
            extrude(options, err);
            break;
        case CliOptions::Command::Replay:
            replay(options);
            break;
        case CliOptions::Command::Convert:
            convert(options);
            break;
        }
        if (!out.flush()) {
            const int error = errno;
            throw CliError("cannot write to standard output" +
                               (error != 0
                                    ? ": " + CliError::reason({error, std::generic_category()})
                                    : std::string()),
                           CliError::failure);
        }
        return 0;
    } catch (const CliError& error) {
        err << "korvan-cli: " << MessageText::oneLine(error.what()) << '\n';
        return error.exitStatus();
    } catch (const std::exception& error) {
        err << "korvan-cli: " << MessageText::oneLine(error.what()) << '\n';
        return CliError::failure;
    } catch (...) {
        err << "korvan-cli: unexpected error\n";
        return CliError::failure;
    }
}

// Reads the scene with read (OpenFile, openDrawable or countFile), or throws with what went wrong.
template <class Read> auto CliApp::readScene(const std::string& path, Read read) const {
    // The reader cleans names as it does those from the file dialog; a name it would change
    // would make it read a different file.
    if (TavrinMeshIO::normalizeFileName(path) != path) {
        throw CliError("cannot open " + CliError::quoted(path) +
                           ": a scene's name must end in .tvm and consist of printable ASCII "
                           "characters",
                       CliError::failure);
    }
    std::string name = path;
    TavrinMeshIO meshIO(files_);
    auto result = (meshIO.*read)(name);
    if (!result) {
        const std::error_code error = meshIO.getLastError();
        throw CliError((error == FileError::corrupt ? "cannot read " : "cannot open ") +
                           CliError::quoted(path) + ": " + CliError::reason(error),
                       CliError::failure);
    }
    return *std::move(result);
}

void CliApp::writeOutput(const std::string& path, std::span<const uint8_t> content) const {
    if (const std::error_code error = FileOverwriter(files_).overwrite(path, content)) {
        throw CliError("cannot write " + CliError::quoted(path) + ": " + CliError::reason(error),
                       CliError::failure);
    }
}

void CliApp::render(const CliOptions& options) const {
    SceneDocument document = SceneDocument::startUp();
    // Objects without faces change nothing in the picture: leave them out.
    document.solids = readScene(options.input, &TavrinMeshIO::openDrawable);
    document.showGrid = !options.noGrid;
    document.showZeroAxes = !options.noAxes;
    document.showReferenceAxes = !options.noAxes;
    const ViewSpecs view = viewFor(options);
    ViewportRenderer renderer;

    if (options.format == CliOptions::Format::Svg) {
        SvgCanvas canvas(options.width, options.height);
        renderer.redrawViewport(canvas, view, document.scene());
        canvas.refresh();
        const std::string svg = canvas.svg();
        writeOutput(options.output, {reinterpret_cast<const uint8_t*>(svg.data()), svg.size()});
        return;
    }

    const auto application = guiApplication();
    const PicturePart whole{view, 0, 0, options.width, options.height};
    const std::string failure = QtPictureWriter(files_).write(
        options.output, options.width, options.height, {whole}, document.scene());
    if (!failure.empty()) {
        throw CliError("cannot write " + CliError::quoted(options.output) + ": " + failure,
                       CliError::failure);
    }
}

void CliApp::info(const CliOptions& options, std::ostream& out) const {
    std::vector<TavrinMeshIO::ObjectCounts> objects;
    if (MeshFiles::formatOf(options.input) != MeshFiles::Format::Tvm &&
        MeshFiles::isReadable(options.input)) {
        for (const auto& object : openMesh(options.input)) {
            const auto& solid = *object->getSolid();
            objects.push_back({solid.getNextPointIndex() - 1, solid.GetFaceNum()});
        }
    } else {
        objects = readScene(options.input, &TavrinMeshIO::countFile);
    }
    out << "{\"file\": " << jsonString(options.input) << ", \"objects\": " << objects.size()
        << ", \"items\": [";
    for (size_t i = 0; i < objects.size(); ++i) {
        out << (i > 0 ? ", " : "") << "{\"points\": " << objects[i].points
            << ", \"faces\": " << objects[i].faces << "}";
    }
    out << "]}\n";
}

void CliApp::extrude(const CliOptions& options, std::ostream& err) const {
    const auto profile = ProfileFile::read(files_, options.input);
    ObjectList solids;
    if (!options.extrusion.addTo.empty()) {
        solids = readScene(options.extrusion.addTo, &TavrinMeshIO::OpenFile);
    }
    const HeadlessExtrusion::Result made = HeadlessExtrusion::run(profile, options.extrusion);
    for (const std::string& message : made.messages) {
        err << "korvan-cli: warning: " << MessageText::oneLine(message) << '\n';
    }
    solids.push_back(made.extrusion);
    TavrinMeshIO meshIO(files_);
    if (!meshIO.saveFile(solids, options.output)) {
        throw CliError("cannot write " + CliError::quoted(options.output) + ": " +
                           CliError::reason(meshIO.getLastError()),
                       CliError::failure);
    }
}

void CliApp::requireFolder(const std::string& folder, const std::string& option) const {
    FileSystem::Status status;
    std::error_code error = files_.status(folder, status);
    if (!error && status.kind != FileSystem::Kind::Directory) {
        error = std::make_error_code(std::errc::not_a_directory);
    }
    if (error) {
        throw CliError("cannot use " + CliError::quoted(folder) + " (" + option +
                           "): " + CliError::reason(error),
                       CliError::failure);
    }
}

void CliApp::replay(const CliOptions& options) const {
    const std::string name = CliError::quoted(options.input);
    if (!options.svgDir.empty()) {
        requireFolder(options.svgDir, "--svg-dir");
    }
    if (!options.sandbox.empty()) {
        requireFolder(options.sandbox, "--sandbox");
    }
    std::optional<MacroFile> macro;
    try {
        macro.emplace(MacroFile::open(files_, options.input));
    } catch (const std::system_error& error) {
        throw CliError("cannot open " + name + ": " + CliError::reason(error.code()),
                       CliError::failure);
    }

    std::array<SvgCanvas, 4> canvases{SvgCanvas(0, 0), SvgCanvas(0, 0), SvgCanvas(0, 0),
                                      SvgCanvas(0, 0)};
    HeadlessEditor editor(*macro, {&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
    editor.player.setSandbox(options.sandbox);
    // File > Export Image... draws its picture again, so it needs no pixels of the canvases.
    const auto application = guiApplication();
    const QtPictureWriter pictures(files_);
    editor.form.attachPictureWriter(pictures);
    try {
        editor.player.playAll();
    } catch (const MacroPlayer::Error& error) {
        throw CliError((error.unreadable() ? "cannot read " + name + " "
                                           : "replay of " + name + " stopped: ") +
                           error.what(),
                       CliError::failure);
    }

    // Every output is made complete before the first one replaces anything.
    std::vector<std::vector<uint8_t>> contents;
    std::vector<FileOverwriter::Replacement> replacements;
    if (!options.output.empty()) {
        TavrinMeshIO meshIO(files_);
        auto content = meshIO.savedContent(editor.form.getDocument().solids, options.output);
        if (!content) {
            throw CliError("cannot write " + CliError::quoted(options.output) + ": " +
                               CliError::reason(meshIO.getLastError()),
                           CliError::failure);
        }
        contents.push_back(std::move(*content));
        replacements.push_back({options.output, {}});
    }
    if (!options.svgDir.empty()) {
        for (size_t i = 0; i < canvases.size(); ++i) {
            const std::string svg = canvases[i].svg();
            contents.emplace_back(svg.begin(), svg.end());
            replacements.push_back({options.svgDir + "/viewport" + std::to_string(i) + ".svg", {}});
        }
    }
    for (size_t i = 0; i < replacements.size(); ++i) {
        replacements[i].content = contents[i];
    }
    size_t failed = 0;
    if (const std::error_code error = FileOverwriter(files_).overwriteAll(replacements, failed)) {
        throw CliError("cannot write " + CliError::quoted(replacements[failed].target) + ": " +
                           CliError::reason(error),
                       CliError::failure);
    }
}

ObjectList CliApp::openMesh(const std::string& path) const {
    try {
        return MeshFiles(files_).open(path);
    } catch (const MeshFiles::Error& error) {
        const bool content = error.code() == FileError::corrupt;
        throw CliError((content ? "cannot read " : "cannot open ") +
                           CliError::quoted(error.file()) + ": " +
                           (*error.what() != 0 ? error.what() : CliError::reason(error.code())),
                       CliError::failure);
    }
}

void CliApp::convert(const CliOptions& options) const {
    const MeshFiles meshFiles(files_);
    ObjectList objects = openMesh(options.input);
    if (!options.selected.empty()) {
        ObjectList chosen;
        for (const int number : options.selected) {
            if (static_cast<size_t>(number) > objects.size()) {
                throw CliError("--selected " + std::to_string(number) + ": " +
                                   CliError::quoted(options.input) + " has " +
                                   std::to_string(objects.size()) + " solids",
                               CliError::usage);
            }
            chosen.push_back(objects[static_cast<size_t>(number) - 1]);
        }
        objects = std::move(chosen);
    }
    try {
        meshFiles.save(objects, options.output, options.ascii);
    } catch (const MeshFiles::Error& error) {
        throw CliError("cannot write " + CliError::quoted(error.file()) + ": " +
                           CliError::reason(error.code()),
                       CliError::failure);
    }
}
