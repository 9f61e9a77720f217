#pragma once

#include <cstdint>
#include <string>

class ColorChooser;
class FileChooser;

// The file dialog and the colour chooser as the windows call them. Each window holds its own
// instance; the choosers already know the window they belong to, so no owner is passed.
class CommonDialogNoOCX {
public:
    CommonDialogNoOCX(FileChooser& files, ColorChooser& colors) : files_(files), colors_(colors) {}

    // The chosen file's full path, or "" when the user cancelled. The same dialog opens and
    // saves (only the title differs), so a name of a file that does not exist yet is returned
    // as typed. filter lists "description|pattern" pairs joined by "|", for example
    // "Tavrin Mesh File(*.tvm)|*.tvm".
    std::string OpenFile(const std::string& filter, const std::string& Title);
    // The chosen colour (red + 256 * green + 65536 * blue), or -1 when the user cancelled.
    // Black is 0, a valid choice.
    int32_t getColor();

private:
    FileChooser& files_;
    ColorChooser& colors_;
};
