#include "cli/CliApp.h"

#include "app/SceneDocument.h"
#include "cli/CliError.h"
#include "cli/SvgCanvas.h"
#include "io/TavrinMeshIO.h"
#include "qt/QtCanvas.h"
#include "render/ViewportRenderer.h"
#include "scene/Transformed3d.h"

#include <QGuiApplication>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <optional>
#include <ostream>

namespace {

std::string quoted(const std::string& path) {
    return "'" + path + "'";
}

// A control character in a file name must not split the message over several lines.
std::string oneLine(std::string message) {
    for (char& c : message) {
        if (static_cast<unsigned char>(c) < 0x20) {
            c = '?';
        }
    }
    return message;
}

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

} // namespace

int CliApp::run(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    try {
        const CliOptions options = CliOptions::parse(args);
        switch (options.command) {
        case CliOptions::Command::Help:
            out << CliOptions::helpText();
            break;
        case CliOptions::Command::Render:
            render(options);
            break;
        case CliOptions::Command::Info:
            info(options, out);
            break;
        }
        out.flush();
        return 0;
    } catch (const CliError& error) {
        err << "korvan-cli: " << oneLine(error.what()) << '\n';
        return error.exitStatus();
    } catch (const std::exception& error) {
        err << "korvan-cli: " << oneLine(error.what()) << '\n';
        return CliError::failure;
    } catch (...) {
        err << "korvan-cli: unexpected error\n";
        return CliError::failure;
    }
}

std::vector<std::shared_ptr<Transformed3d>> CliApp::loadScene(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::exists(path, error)) {
        throw CliError("cannot open " + quoted(path) + ": no such file", CliError::failure);
    }
    if (std::filesystem::is_directory(path, error)) {
        throw CliError("cannot open " + quoted(path) + ": it is a directory", CliError::failure);
    }
    // The reader cleans names as it does those from the file dialog; a name it would change
    // would make it read a different file.
    if (TavrinMeshIO::normalizeFileName(path) != path) {
        throw CliError("cannot open " + quoted(path) +
                           ": a scene's name must end in .tvm and consist of printable ASCII "
                           "characters",
                       CliError::failure);
    }
    std::string name = path;
    TavrinMeshIO meshIO;
    auto objects = meshIO.OpenFile(name);
    if (!objects) {
        throw CliError("cannot read " + quoted(path) +
                           ": the file might be corrupted or was improperly saved",
                       CliError::failure);
    }
    return *objects;
}

void CliApp::render(const CliOptions& options) {
    SceneDocument document = SceneDocument::startUp();
    document.solids = loadScene(options.scene);
    document.showGrid = !options.noGrid;
    document.showZeroAxes = !options.noAxes;
    document.showReferenceAxes = !options.noAxes;
    const ViewSpecs view = viewFor(options);
    ViewportRenderer renderer;
    const CliError cannotWrite("cannot write " + quoted(options.output), CliError::failure);

    if (options.format == CliOptions::Format::Svg) {
        SvgCanvas canvas(options.width, options.height);
        renderer.redrawViewport(canvas, view, document.scene());
        canvas.refresh();
        if (!canvas.saveFile(options.output)) {
            throw cannotWrite;
        }
        return;
    }

    // The image canvas draws text, and fonts need a GUI application; no display is needed to
    // paint into an image.
    std::optional<QGuiApplication> application;
    int argc = 1;
    char name[] = "korvan-cli";
    char* argv[] = {name, nullptr};
    if (QCoreApplication::instance() == nullptr) {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        // Qt's notes about its surroundings (no runtime directory on a headless machine, say)
        // are not failures of the tool; a successful run keeps standard error empty.
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            if (type == QtCriticalMsg || type == QtFatalMsg) {
                std::cerr << "korvan-cli: " << oneLine(text.toStdString()) << '\n';
            }
        });
        application.emplace(argc, argv);
    }
    QtCanvas canvas(options.width, options.height);
    renderer.redrawViewport(canvas, view, document.scene());
    canvas.refresh();
    if (!canvas.saveImage(options.output)) {
        throw cannotWrite;
    }
}

void CliApp::info(const CliOptions& options, std::ostream& out) {
    const auto objects = loadScene(options.scene);
    out << "{\"file\": " << jsonString(options.scene) << ", \"objects\": " << objects.size()
        << ", \"items\": [";
    for (size_t i = 0; i < objects.size(); ++i) {
        const auto solid = objects[i]->getSolid();
        const int32_t points = solid ? solid->getNextPointIndex() - 1 : 0;
        const int32_t faces = solid ? solid->GetFaceNum() : 0;
        out << (i > 0 ? ", " : "") << "{\"points\": " << points << ", \"faces\": " << faces << "}";
    }
    out << "]}\n";
}
