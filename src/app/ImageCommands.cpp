#include "app/ImageCommands.h"

#include "app/EditorPort.h"
#include "app/ExportImageDialog.h"
#include "app/MainMenu.h"
#include "app/ViewportSet.h"
#include "geometry/Rounding.h"
#include "io/CommonDialogNoOCX.h"
#include "platform/Canvas.h"
#include "platform/ModalHost.h"
#include "platform/Prompts.h"
#include "render/ViewportScene.h"

#include <algorithm>
#include <cctype>

namespace {

const std::string title = "Export Image";

// "PNG image|*.png|JPEG image|*.jpg;*.jpeg" for the extensions the writer knows.
std::string filterOf(const std::vector<std::string>& extensions) {
    std::string filter;
    for (const std::string& extension : extensions) {
        if (extension == ".jpeg") {
            filter += ";*.jpeg";
            continue;
        }
        std::string format = extension.substr(1);
        std::transform(format.begin(), format.end(), format.begin(),
                       [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
        filter += (filter.empty() ? "" : "|") + (format == "JPG" ? "JPEG" : format) + " image|*" +
                  extension;
    }
    return filter;
}

// An edge at shown pixels of a picture shown wide, moved to a picture typed wide.
int scaled(int shown, int typed, int edge) {
    return shown > 0 ? Rounding::toInt32(static_cast<double>(edge) * typed / shown) : 0;
}

} // namespace

void ImageCommands::bind(MainMenu& menus) {
    menus.bind("mnuFileExportImage", [this] { ExportImage(); });
}

std::vector<ImageCommands::Picture> ImageCommands::pictures() const {
    std::vector<Picture> shown;
    for (int i = 0; i < 4; ++i) {
        const Canvas* canvas = viewports_.canvas(i);
        if (canvas != nullptr && canvas->isVisible()) {
            const PicturePart part{viewports_.viewSpecs(i + 1), 0, 0, canvas->scaleWidth(),
                                   canvas->scaleHeight()};
            shown.push_back({"Viewport " + std::to_string(i + 1), part.width, part.height, {part}});
        }
    }
    if (shown.size() == 4) {
        // As on the screen: viewports 1 and 2 side by side above 3 and 4.
        Picture all{"All four", 0, 0, {}};
        for (size_t i = 0; i < 4; ++i) {
            PicturePart part = shown[i].parts[0];
            part.left = i % 2 == 1 ? shown[i - 1].width : 0;
            part.top = i >= 2 ? shown[i - 2].height : 0;
            all.width = std::max(all.width, part.left + part.width);
            all.height = std::max(all.height, part.top + part.height);
            all.parts.push_back(part);
        }
        shown.push_back(all);
    }
    return shown;
}

void ImageCommands::ExportImage() {
    const std::vector<Picture> choices = pictures();
    ExportImageDialog dialog;
    std::vector<ExportImageDialog::Choice> names;
    for (const Picture& picture : choices) {
        names.push_back({picture.name, picture.width, picture.height});
    }
    dialog.initialize(names);
    dialogs_.showModal(dialog);
    if (!dialog.hasAccepted()) {
        return;
    }
    const std::string name = fileDialog_.OpenFile(filterOf(writer_.extensions()), title);
    if (name.empty()) {
        return;
    }
    const Picture& picture = choices[static_cast<size_t>(dialog.getChoice())];
    const int width = dialog.getWidth();
    const int height = dialog.getHeight();
    // Drawn larger or smaller, a view keeps what it frames: its zoom and shift, both in
    // pixels, change with the side that changes least.
    const auto grown = static_cast<float>(std::min(static_cast<double>(width) / picture.width,
                                                   static_cast<double>(height) / picture.height));
    std::vector<PicturePart> parts;
    for (PicturePart part : picture.parts) {
        part.view.zoom *= grown;
        part.view.shiftx *= grown;
        part.view.shifty *= grown;
        const int right = scaled(picture.width, width, part.left + part.width);
        const int bottom = scaled(picture.height, height, part.top + part.height);
        part.left = scaled(picture.width, width, part.left);
        part.top = scaled(picture.height, height, part.top);
        part.width = right - part.left;
        part.height = bottom - part.top;
        parts.push_back(part);
    }
    const std::string failure = writer_.write(name, width, height, parts, editor_.viewportScene());
    // Drawing the picture projected the document for its parts; the viewports project it
    // again for what they show and what the mouse picks there.
    editor_.redrawAllViewports();
    if (!failure.empty()) {
        showMessage("Cannot export " + name + ": " + failure + ".", title, MessageIcon::Critical);
        return;
    }
    editor_.showStatus("Exported image " + name.substr(name.find_last_of('/') + 1) + " (" +
                       std::to_string(width) + " x " + std::to_string(height) + ")");
}
