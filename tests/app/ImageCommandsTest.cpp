#include "app/ExportImageDialog.h"
#include "app/PictureWriter.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>
#include <tuple>

namespace {

// Keeps what it is asked to write and writes nothing.
struct RecordingWriter : PictureWriter {
    struct Call {
        std::string path;
        int width;
        int height;
        std::vector<PicturePart> parts;
    };
    mutable std::vector<Call> calls;

    std::vector<std::string> extensions() const override { return {".png", ".jpg", ".jpeg"}; }
    std::string write(const std::string& path, int width, int height,
                      const std::vector<PicturePart>& parts, const ViewportScene&) const override {
        calls.push_back({path, width, height, parts});
        return "";
    }
};

using Host = ScriptedModalHost;

} // namespace

TEST(ExportImageDialog, TypedSidesMustBeWholeNumbersFrom1To16384) {
    ScriptedPrompts prompts;
    const auto typed = [](const std::string& width, const std::string& height) {
        auto dialog = std::make_unique<ExportImageDialog>();
        dialog->initialize({{"Viewport 4", 800, 600}});
        dialog->chooseOption("optTypedSize");
        dialog->typeText("txtWidth", width);
        dialog->typeText("txtHeight", height);
        dialog->press("cmdExport");
        return dialog;
    };
    for (const auto& [width, height, refused] : {std::tuple{"0", "5", "width"},
                                                 {"16385", "5", "width"},
                                                 {"2.5", "5", "width"},
                                                 {"x", "5", "width"},
                                                 {"", "5", "width"},
                                                 {"5", "-1", "height"},
                                                 {"5", "7 px", "height"}}) {
        const auto dialog = typed(width, height);
        const std::string line = std::string(width) + " x " + height;
        EXPECT_FALSE(dialog->isClosed()) << line;
        ASSERT_FALSE(prompts.messages().empty()) << line;
        EXPECT_EQ(prompts.messages().back().text,
                  "The " + std::string(refused) + " must be a whole number from 1 to 16384.")
            << line;
        const TextBoxState& box = refused[0] == 'w' ? dialog->txtWidth : dialog->txtHeight;
        EXPECT_EQ(box.Text, "") << line;
        EXPECT_TRUE(box.Focused) << line;
    }
    const auto largest = typed(" 16384 ", "1");
    EXPECT_TRUE(largest->hasAccepted());
    EXPECT_EQ(largest->getWidth(), 16384);
    EXPECT_EQ(largest->getHeight(), 1);
}

TEST(ImageCommands, APictureOfAllFourKeepsTheirPlacesAndEachViewportItsView) {
    TestWindow w;
    RecordingWriter writer;
    w.form.attachPictureWriter(writer);
    w.showFourViewports(); // 400 x 300 each
    w.form.getViewports().viewSpecs(2).shiftx = 40;

    // At the size on the screen, then at a typed one half as wide.
    w.dialogs.queueDialog({Host::pick("lstViewport", 4), Host::press("cmdExport")});
    w.files.queueAnswer("/pictures/all.png");
    w.dialogs.queueDialog({Host::pick("lstViewport", 4), Host::choose("optTypedSize"),
                           Host::type("txtWidth", "400"), Host::press("cmdExport")});
    w.files.queueAnswer("/pictures/half.jpg");
    w.choose({"&File", "Export &Image..."});
    EXPECT_EQ(w.frame.status(), "Exported image all.png (800 x 600)");
    w.choose({"&File", "Export &Image..."});
    EXPECT_EQ(w.frame.status(), "Exported image half.jpg (400 x 600)");
    EXPECT_EQ(w.files.requests()[0].filter, "PNG image|*.png|JPEG image|*.jpg;*.jpeg");
    EXPECT_EQ(w.files.requests()[0].title, "Export Image");

    ASSERT_EQ(writer.calls.size(), 2u);
    EXPECT_EQ(writer.calls[1].path, "/pictures/half.jpg");
    const std::tuple<int, int, int, int> places[] = {
        {0, 0, 200, 300}, {200, 0, 200, 300}, {0, 300, 200, 300}, {200, 300, 200, 300}};
    for (const auto& call : writer.calls) {
        ASSERT_EQ(call.parts.size(), 4u) << call.path;
    }
    for (size_t i = 0; i < 4; ++i) {
        const PicturePart& part = writer.calls[1].parts[i];
        EXPECT_EQ(std::tuple(part.left, part.top, part.width, part.height), places[i]) << i;
        // Half as wide: every view frames what it did at half the zoom and shift.
        ViewSpecs view = w.form.getViewports().viewSpecs(static_cast<int>(i) + 1);
        view.zoom /= 2;
        view.shiftx /= 2;
        EXPECT_EQ(part.view, view) << i;
        EXPECT_EQ(writer.calls[0].parts[i].width, 400) << i;
    }
    EXPECT_EQ(writer.calls[0].parts[3].left, 400);
}
