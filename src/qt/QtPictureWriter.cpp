#include "qt/QtPictureWriter.h"

#include "io/FileOverwriter.h"
#include "macro/MessageText.h"
#include "qt/QtCanvas.h"
#include "render/ViewportRenderer.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <algorithm>
#include <cctype>
#include <filesystem>

namespace {

// Qt's name of the format an extension names, or nullptr for one it does not write.
const char* formatOf(const std::string& path, const std::vector<std::string>& extensions) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (std::find(extensions.begin(), extensions.end(), extension) == extensions.end()) {
        return nullptr;
    }
    return extension == ".png" ? "PNG" : extension == ".bmp" ? "BMP" : "JPEG";
}

// ".png, .bmp or .jpg"
std::string listed(const std::vector<std::string>& extensions) {
    std::string text;
    for (size_t i = 0; i < extensions.size(); ++i) {
        text += (i == 0 ? "" : i + 1 == extensions.size() ? " or " : ", ") + extensions[i];
    }
    return text;
}

} // namespace

std::vector<std::string> QtPictureWriter::extensions() const {
    std::vector<std::string> known = {".png", ".bmp"};
    if (QImageWriter::supportedImageFormats().contains("jpeg")) {
        known.insert(known.end(), {".jpg", ".jpeg"});
    }
    return known;
}

std::string QtPictureWriter::write(const std::string& path, int width, int height,
                                   const std::vector<PicturePart>& parts,
                                   const ViewportScene& scene) const {
    const std::vector<std::string> known = extensions();
    const char* format = formatOf(path, known);
    if (format == nullptr) {
        return "the name must end in " + listed(known);
    }
    const std::string noMemory = "there is no memory for a picture of " + std::to_string(width) +
                                 " x " + std::to_string(height) + " pixels";
    // A picture of one part that fills it is the part's own image.
    const bool single = parts.size() == 1 && parts[0].left == 0 && parts[0].top == 0 &&
                        parts[0].width == width && parts[0].height == height;
    QImage picture;
    if (!single) {
        picture = QImage(width, height, QImage::Format_RGB32);
        if (picture.isNull()) {
            return noMemory;
        }
        picture.fill(Qt::black);
    }
    ViewportRenderer renderer;
    for (const PicturePart& part : parts) {
        if (part.width <= 0 || part.height <= 0) {
            continue;
        }
        QtCanvas canvas(part.width, part.height);
        if (canvas.image().isNull()) {
            return noMemory;
        }
        renderer.redrawViewport(canvas, part.view, scene);
        canvas.refresh();
        if (single) {
            picture = canvas.image();
        } else {
            QPainter(&picture).drawImage(part.left, part.top, canvas.image());
        }
    }
    QByteArray encoded;
    QBuffer buffer(&encoded);
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, format)) {
        return "the picture cannot be encoded";
    }
    const std::span<const uint8_t> bytes(reinterpret_cast<const uint8_t*>(encoded.constData()),
                                         static_cast<size_t>(encoded.size()));
    if (const std::error_code error = FileOverwriter(files_).overwrite(path, bytes)) {
        return MessageText::reason(error);
    }
    return "";
}
