#pragma once

#include "app/PictureWriter.h"

#include <string>
#include <vector>

class CommonDialogNoOCX;
class EditorPort;
class MainMenu;
class ModalHost;
class ViewportSet;

// File > Export Image...: a picture of one shown viewport, or of all four in their places on
// the screen, drawn again at its size on the screen or at a size the user types, and written
// in the format its file name's extension names. The document stays as it was; Export To
// Bitmap, which saves a viewport's image as it is, stays beside it.
class ImageCommands {
public:
    ImageCommands(EditorPort& editor, const ViewportSet& viewports, ModalHost& dialogs,
                  CommonDialogNoOCX& fileDialog, const PictureWriter& writer)
        : editor_(editor), viewports_(viewports), dialogs_(dialogs), fileDialog_(fileDialog),
          writer_(writer) {}

    // Makes the File menu's "Export &Image..." run ExportImage.
    void bind(MainMenu& menus);

    void ExportImage();

private:
    // A picture the user may choose, at its size on the screen.
    struct Picture {
        std::string name;
        int width = 0;
        int height = 0;
        std::vector<PicturePart> parts;
    };
    // Each shown viewport, then all four together when four are shown.
    std::vector<Picture> pictures() const;

    EditorPort& editor_;
    const ViewportSet& viewports_;
    ModalHost& dialogs_;
    CommonDialogNoOCX& fileDialog_;
    const PictureWriter& writer_;
};
