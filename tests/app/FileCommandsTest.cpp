#include "support/TempFolder.h"
#include "support/TestSolids.h"
#include "support/TestWindow.h"

#include <fstream>
#include <gtest/gtest.h>

namespace {

const std::vector<std::string> fileOpen = {"&File", "&Open"};
const std::vector<std::string> fileSave = {"&File", "&Save"};
const std::vector<std::string> fileExport = {"&File", "&Export To Bitmap"};

} // namespace

TEST(FileCommands, NewAsksAndEmptiesTheDocumentOnlyOnYes) {
    TestWindow w;
    SceneDocument& document = w.form.getDocument();
    document.solids.push_back(makeObject());
    document.workPlanes.push_back(std::make_shared<WorkPlane>());
    document.profiles.push_back(std::make_shared<Profile>());
    w.choose({"&File", "&New"}); // unanswered: No
    ASSERT_EQ(w.prompts.messages().size(), 1u);
    EXPECT_EQ(w.prompts.messages()[0].text,
              "Are you sure you want to create a new file.  All unsaved information will be lost.");
    EXPECT_EQ(w.prompts.messages()[0].buttons, MessageButtons::YesNoDefaultNo); // Enter: No
    EXPECT_EQ(document.solids.size(), 1u);

    w.prompts.queueAnswer(MessageAnswer::Yes);
    w.choose({"&File", "&New"});
    EXPECT_TRUE(document.solids.empty());
    EXPECT_TRUE(document.workPlanes.empty());
    EXPECT_TRUE(document.profiles.empty()); // the tree and the current profile: the monkey's
}

TEST(FileCommands, SaveUnderTheHourglassThenOpenReadsItBackAndFailuresAreReported) {
    TestWindow w;
    TempFolder folder;
    w.form.getDocument().solids = {makeObject(), makeObject()};
    w.files.queueAnswer(folder.file("two"));
    w.choose(fileSave);
    EXPECT_EQ(w.files.requests()[0].title, "Save File");
    EXPECT_EQ(w.frame.pointers(),
              (std::vector<MousePointer>{MousePointer::Hourglass, MousePointer::Default}));
    w.form.getDocument().solids.clear();
    w.files.queueAnswer(folder.file("two.tvm"));
    w.choose(fileOpen);
    EXPECT_EQ(w.files.requests()[1].filter, "Tavrin Mesh File(*.tvm)|*.tvm");
    EXPECT_EQ(w.form.getDocument().solids.size(), 2u); // and their nodes: the monkey's

    // A corrupt file, chosen with the dialog's closing zero and without its extension.
    std::ofstream(folder.file("bad.tvm")) << "abc";
    w.files.queueAnswer(folder.file("bad") + '\0');
    w.choose(fileOpen);
    w.choose(fileOpen); // cancelled
    w.files.queueAnswer(folder.file("missing/saved.tvm"));
    w.choose(fileSave);
    ASSERT_EQ(w.prompts.messages().size(), 2u);
    EXPECT_EQ(w.prompts.messages()[0].text,
              "Error Opening " + folder.file("bad.tvm") +
                  ".  The file might be corrupted or was improperly saved.");
    EXPECT_TRUE(w.form.getDocument().solids.empty());
    EXPECT_EQ(w.prompts.messages()[1].text, "Error saving Tavrin Mesh File");
    EXPECT_EQ(w.frame.pointers().back(), MousePointer::Default);
}

TEST(FileCommands, ExportSavesTheOnlyViewportOrAsksUntilTheAnswerNamesOne) {
    TestWindow w;
    for (const std::string name : {"scene", "scene.BMP", "  a\tb\x7f\xc3\xa9.bmp "}) {
        w.files.queueAnswer(name);
        w.choose(fileExport);
    }
    EXPECT_EQ(w.files.requests()[0].filter, "Devide Dependent Bitmap(*.bmp)|*.bmp");
    EXPECT_TRUE(w.prompts.inputBoxes().empty());
    EXPECT_EQ(w.canvases[3].savedBitmaps(),
              (std::vector<std::string>{"scene.bmp", "scene.BMP.bmp", "a b   .bmp"}));

    w.choose({"&Options", "&Set Viewports", "&Four Windows"});
    w.files.queueAnswer("four");
    w.prompts.queueInput("0", "5", "-1", "two", "0.4", "0x3", "2,5", "2.5");
    w.choose(fileExport);
    EXPECT_EQ(w.prompts.inputBoxes().size(), 8u);
    // 2.5 - 1 rounds to 2, the third viewport.
    EXPECT_EQ(w.canvases[2].savedBitmaps(), (std::vector<std::string>{"four.bmp"}));
    // Cancelling the question, or an empty answer, saves nothing.
    w.prompts.queueInput(std::nullopt, "");
    for (int i = 0; i < 2; ++i) {
        w.files.queueAnswer("none");
        w.choose(fileExport);
    }
    EXPECT_EQ(w.canvases[3].savedBitmaps().size(), 3u);
    EXPECT_EQ(w.frame.pointers().back(), MousePointer::Default);

    w.canvases[3].setSaveSucceeds(false);
    w.files.queueAnswer("full");
    w.prompts.queueInput("4");
    w.choose(fileExport);
    ASSERT_EQ(w.prompts.messages().size(), 1u);
    EXPECT_EQ(w.prompts.messages()[0].text, "Error saving full.bmp");
}
