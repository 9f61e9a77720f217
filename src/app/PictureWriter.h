#pragma once

#include "render/ViewSpecs.h"

#include <string>
#include <vector>

struct ViewportScene;

// One viewport's part of a picture: the view it shows and the rectangle of the picture it
// fills.
struct PicturePart {
    ViewSpecs view;
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// Writes pictures of a document's viewports as image files: every part is drawn again by the
// viewport renderer at its own size into its place, and the format is the one the file's
// extension names. The editor's Export Image and korvan-cli's render write through it.
class PictureWriter {
public:
    virtual ~PictureWriter() = default;

    // The extensions it writes, lower case with their dot, in the order a dialog offers them.
    virtual std::vector<std::string> extensions() const = 0;
    // Writes a width x height picture of the parts to path. Returns "" once the whole file is
    // written, otherwise why not as the end of a sentence ("the name must end in ..."); the
    // file is then left as it was.
    virtual std::string write(const std::string& path, int width, int height,
                              const std::vector<PicturePart>& parts,
                              const ViewportScene& scene) const = 0;
};
