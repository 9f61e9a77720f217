#include "io/CommonDialogNoOCX.h"

#include "platform/ColorChooser.h"
#include "platform/FileChooser.h"

std::string CommonDialogNoOCX::OpenFile(const std::string& filter, const std::string& Title) {
    return files_.chooseFile(Title, filter);
}

int32_t CommonDialogNoOCX::getColor() {
    // The dialog preselects nothing: black is only where it starts.
    return colors_.chooseColor();
}
