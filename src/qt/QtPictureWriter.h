#pragma once

#include "app/PictureWriter.h"

class FileSystem;

// Pictures drawn by the viewport renderer into QtCanvas images and encoded by Qt: PNG and BMP,
// and JPEG where Qt has its image-format plug-in. The file is replaced whole or not at all.
class QtPictureWriter : public PictureWriter {
public:
    explicit QtPictureWriter(FileSystem& files) : files_(files) {}

    std::vector<std::string> extensions() const override;
    std::string write(const std::string& path, int width, int height,
                      const std::vector<PicturePart>& parts,
                      const ViewportScene& scene) const override;

private:
    FileSystem& files_;
};
