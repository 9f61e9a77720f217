#include "app/FileCommands.h"

#include "app/EditorPort.h"
#include "app/MainMenu.h"
#include "app/SceneDocument.h"
#include "app/SceneTreeModel.h"
#include "app/SelectionState.h"
#include "app/StatusText.h"
#include "app/UndoHistory.h"
#include "app/ViewportSet.h"
#include "geometry/NumberText.h"
#include "geometry/Rounding.h"
#include "io/CommonDialogNoOCX.h"
#include "io/FileNames.h"
#include "io/TavrinMeshIO.h"
#include "platform/Canvas.h"
#include "platform/Prompts.h"
#include "platform/WindowFrame.h"

#include <optional>
#include <string>

namespace {

// The viewport an answer to the export question names (0 to 3), or nothing when the answer
// is no number greater than 0 and at most 4, read as every typed number is. Answers below
// 0.5 name no viewport either.
std::optional<int> viewportIndex(const std::string& answer) {
    const std::optional<float> value = NumberText::parseSingle(answer);
    if (!value || !(*value <= 4)) {
        return std::nullopt;
    }
    const int index = Rounding::toInt32(static_cast<float>(static_cast<double>(*value) - 1));
    return index >= 0 ? std::optional<int>(index) : std::nullopt;
}

std::string meshFilter(const TavrinMeshIO& meshIO) {
    return "Tavrin Mesh File(*" + meshIO.getExtension() + ")|*" + meshIO.getExtension();
}

// The pointer of the whole window is the hourglass for the life of this object.
class Hourglass {
public:
    explicit Hourglass(WindowFrame& frame) : frame_(frame) {
        frame_.setMousePointer(MousePointer::Hourglass);
    }
    ~Hourglass() { frame_.setMousePointer(MousePointer::Default); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

private:
    WindowFrame& frame_;
};

} // namespace

void FileCommands::bind(MainMenu& menus) {
    menus.bind("mnuFileNew", [this] { New(); });
    menus.bind("mnuFileOpen", [this] { Open(); });
    menus.bind("mnuFileSave", [this] { Save(); });
    menus.bind("mnuFileSaveAs", [this] { SaveAs(); });
    menus.bind("mnuFileExport", [this] { ExportToBitmap(); });
    menus.bind("mnuFileExit", [this] { Exit(); });
}

std::string FileCommands::shownName() const {
    if (fileName_.empty()) {
        return "Untitled";
    }
    const size_t slash = fileName_.find_last_of('/');
    return slash == std::string::npos ? fileName_ : fileName_.substr(slash + 1);
}

std::string FileCommands::title() const {
    return shownName() + "[*] - " + editor_.caption();
}

bool FileCommands::settleUnsavedChanges() {
    if (!editor_.history().isModified()) {
        return true;
    }
    const MessageAnswer answer =
        activePrompts().messageBox("Save changes to " + shownName() + "?", editor_.caption(),
                                   MessageIcon::Exclamation, MessageButtons::SaveDiscardCancel);
    if (answer == MessageAnswer::Save) {
        return saveAs("Save File");
    }
    return answer == MessageAnswer::Discard;
}

void FileCommands::Exit() {
    if (settleUnsavedChanges()) {
        frame_.unload();
    }
}

void FileCommands::New() {
    if (!settleUnsavedChanges()) {
        return;
    }
    const MessageAnswer answer = activePrompts().messageBox(
        "Are you sure you want to create a new file.  All unsaved information will be lost.",
        editor_.caption(), MessageIcon::None, MessageButtons::YesNoDefaultNo);
    if (answer != MessageAnswer::Yes) {
        return;
    }
    selection_.resetAllSelect();
    document_.solids.clear();
    document_.profiles.clear();
    document_.currentProfile.reset(); // it has left the document with the others
    document_.workPlanes.clear();
    editor_.history().clear();
    fileName_.clear();
    editor_.rebuildTree();
}

void FileCommands::Open() {
    if (!settleUnsavedChanges()) {
        return;
    }
    std::string name = fileDialog_.OpenFile(meshFilter(meshIO_), "Open File");
    if (name.empty()) {
        return;
    }
    auto list = meshIO_.OpenFile(name);
    if (!list) {
        showMessage("Error Opening " + name +
                        ".  The file might be corrupted or was improperly saved.",
                    "Opening...", MessageIcon::Critical);
        document_.solids.clear();
        // What is left is no file's content; the steps taken so far lead nowhere now.
        editor_.history().clear();
        fileName_.clear();
        // The tree must not lead to the objects that are gone.
        editor_.rebuildTree();
        return;
    }
    document_.solids = std::move(*list);
    editor_.history().clear();
    fileName_ = TavrinMeshIO::normalizeFileName(name);
    // Workplanes and profiles stay in the document but lose their nodes until the next rebuild.
    tree_.showSolids(document_.solids);
    editor_.redrawAllViewports();
    editor_.fileUsed(fileName_);
    editor_.showStatus("Opened " + shownName() + " (" +
                       StatusText::solidsAndFaces(document_.solids) + ")");
}

void FileCommands::Save() {
    saveAs("Save File");
}

void FileCommands::SaveAs() {
    saveAs("Save File As");
}

bool FileCommands::saveAs(const std::string& dialogTitle) {
    const std::string name = fileDialog_.OpenFile(meshFilter(meshIO_), dialogTitle);
    if (name.empty()) {
        return false;
    }
    bool ok = false;
    {
        Hourglass busy(frame_);
        ok = meshIO_.saveFile(document_.solids, name);
    }
    if (!ok) {
        showMessage("Error saving Tavrin Mesh File", "Saving...", MessageIcon::Critical);
        return false;
    }
    editor_.history().markClean();
    fileName_ = TavrinMeshIO::normalizeFileName(name);
    editor_.fileUsed(fileName_);
    editor_.showStatus("Saved " + shownName() + " (" +
                       StatusText::solidsAndFaces(document_.solids) + ")");
    return true;
}

void FileCommands::ExportToBitmap() {
    saveViewportBitmap();
    frame_.setMousePointer(MousePointer::Default);
}

void FileCommands::saveViewportBitmap() {
    int visibleCount = 0;
    for (int i = 0; i < 4; ++i) {
        const Canvas* canvas = viewports_.canvas(i);
        visibleCount += canvas != nullptr && canvas->isVisible() ? 1 : 0;
    }
    const std::string chosen =
        fileDialog_.OpenFile("Devide Dependent Bitmap(*.bmp)|*.bmp", "Save File");
    if (chosen.empty()) {
        return;
    }
    const std::string name = FileNames::clean(chosen, ".bmp");
    // The single visible viewport is always the fourth.
    std::optional<int> index = 3;
    if (visibleCount > 1) {
        index.reset();
        while (!index) {
            const auto answer = activePrompts().inputBox(
                "Please Select Viewport to generate bitmap from", "Viewport Selection", "1");
            if (!answer || answer->empty()) {
                return;
            }
            index = viewportIndex(*answer);
        }
    }
    const Canvas* canvas = viewports_.canvas(*index);
    if (canvas == nullptr) {
        return;
    }
    frame_.setMousePointer(MousePointer::Hourglass);
    if (!canvas->saveBitmap(name)) {
        showMessage("Error saving " + name, "Saving...", MessageIcon::Critical);
    }
}
