#include "qt/QtPictureWriter.h"
#include "app/frmTolvane.h"
#include "io/PosixFileSystem.h"
#include "qt/QtCanvas.h"
#include "render/ViewportRenderer.h"
#include "support/ScriptedChoosers.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"
#include "support/ScriptedWindowFrame.h"
#include "support/TempFolder.h"
#include "support/TestSolids.h"

#include <QImage>
#include <QImageReader>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

using Host = ScriptedModalHost;

// The main window's logic on image canvases, 400 x 300 in all, with a cube to see, writing
// its pictures through the Qt writer.
struct PictureWindow {
    ScriptedPrompts prompts;
    ScriptedModalHost dialogs;
    ScriptedFileChooser files;
    ScriptedColorChooser colors;
    ScriptedWindowFrame frame;
    std::array<QtCanvas, 4> canvases{QtCanvas(1, 1), QtCanvas(1, 1), QtCanvas(1, 1),
                                     QtCanvas(1, 1)};
    QtPictureWriter writer{PosixFileSystem::instance()};
    frmTolvane form{dialogs};

    PictureWindow() {
        form.attachCanvases({&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
        form.attachFrame(frame, files, colors);
        form.attachPictureWriter(writer);
        form.getDocument().solids = {makeObject()};
        form.Form_Resize(500, 300);
    }

    void exportImage(const std::string& path, std::vector<ScriptedModalHost::Step> steps) {
        dialogs.queueDialog(std::move(steps));
        files.queueAnswer(path);
        form.getMenus().getMenuBar().findPath({"&File", "Export &Image..."})->click();
    }
};

} // namespace

TEST(QtPictureWriter, WritesTheViewportAsShownOrDrawnAgainAtATypedSize) {
    PictureWindow w;
    TempFolder folder;
    w.exportImage(folder.file("shown.png"), {Host::press("cmdExport")});
    const QImage shown(QString::fromStdString(folder.file("shown.png")));
    EXPECT_EQ(shown.convertToFormat(QImage::Format_RGB32), w.canvases[3].image());
    EXPECT_EQ(w.frame.status(), "Exported image shown.png (400 x 300)");

    w.exportImage(folder.file("typed.bmp"),
                  {Host::choose("optTypedSize"), Host::type("txtWidth", "64"),
                   Host::type("txtHeight", "48"), Host::press("cmdExport")});
    const QImage typed(QString::fromStdString(folder.file("typed.bmp")));
    EXPECT_EQ(QImageReader::imageFormat(QString::fromStdString(folder.file("typed.bmp"))), "bmp");
    // Drawn again at that size, framing what the viewport frames, not its picture scaled.
    ViewSpecs view = w.form.getViewports().viewSpecs(4);
    view.zoom *= static_cast<float>(64.0 / 400);
    QtCanvas drawn(64, 48);
    ViewportRenderer().redrawViewport(drawn, view, w.form.viewportScene());
    EXPECT_EQ(typed.convertToFormat(QImage::Format_RGB32), drawn.image());
    EXPECT_TRUE(w.prompts.messages().empty());
}

TEST(QtPictureWriter, AnUnknownExtensionOrAnUnwritablePlaceIsOneMessageAndNoFile) {
    PictureWindow w;
    TempFolder folder;
    const std::string known =
        w.writer.extensions().size() == 4 ? ".png, .bmp, .jpg or .jpeg" : ".png or .bmp";
    for (const auto& [name, why] :
         {std::pair{"view.gif", "the name must end in " + known},
          std::pair{"missing/view.png", std::string("no such file or directory")}}) {
        w.exportImage(folder.file(name), {Host::press("cmdExport")});
        ASSERT_FALSE(w.prompts.messages().empty()) << name;
        EXPECT_EQ(w.prompts.messages().back().text,
                  "Cannot export " + folder.file(name) + ": " + why + ".");
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path));
}
