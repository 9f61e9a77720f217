#include "io/TavrinMeshIO.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"
#include "support/TestSolids.h"
#include "support/TestWindow.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// A fresh folder per test, removed with everything in it afterwards.
struct TempFolder {
    fs::path path = fs::temp_directory_path() /
                    ("korvan-file-" + std::to_string(::getpid()) + "-" +
                     ::testing::UnitTest::GetInstance()->current_test_info()->name());
    TempFolder() { fs::create_directories(path); }
    ~TempFolder() { fs::remove_all(path); }
    std::string file(const std::string& name) const { return (path / name).string(); }
};

std::shared_ptr<Transformed3d> cubeObject() {
    auto object = std::make_shared<Transformed3d>();
    object->setSolid(makeCube());
    return object;
}

const std::vector<std::string> fileNew = {"&File", "&New"};
const std::vector<std::string> fileOpen = {"&File", "&Open"};
const std::vector<std::string> fileSave = {"&File", "&Save"};
const std::vector<std::string> fileExport = {"&File", "&Export To Bitmap"};

} // namespace

TEST(FileCommands, NewAsksAndEmptiesTheDocumentOnlyOnYes) {
    TestWindow w;
    SceneDocument& document = w.form.getDocument();
    document.solids.push_back(cubeObject());
    document.workPlanes.push_back(std::make_shared<WorkPlane>());
    document.profiles.push_back(std::make_shared<Profile>());
    document.currentProfile = document.profiles[0];
    w.form.rebuildTree();

    w.prompts.queueAnswer(MessageAnswer::No);
    w.choose(fileNew);
    ASSERT_EQ(w.prompts.messages().size(), 1u);
    EXPECT_EQ(w.prompts.messages()[0].text,
              "Are you sure you want to create a new file.  All unsaved information will be lost.");
    EXPECT_EQ(w.prompts.messages()[0].title, "Korvan Version 2.0");
    EXPECT_EQ(w.prompts.messages()[0].buttons, MessageButtons::YesNoDefaultNo);
    EXPECT_EQ(document.solids.size(), 1u);

    w.prompts.queueAnswer(MessageAnswer::Yes);
    w.choose(fileNew);
    EXPECT_TRUE(document.solids.empty());
    EXPECT_TRUE(document.workPlanes.empty());
    EXPECT_TRUE(document.profiles.empty());
    EXPECT_EQ(w.form.getSceneTree().root().children().size(), 0u);
    EXPECT_EQ(document.currentProfile, nullptr); // it left the document with the others
}

TEST(FileCommands, OpenReadsTheFileAndAFailureLeavesNoObjectBehind) {
    TestWindow w;
    TempFolder folder;
    const std::string good = folder.file("two.tvm");
    ASSERT_TRUE(TavrinMeshIO().saveFile({cubeObject(), cubeObject()}, good));

    w.files.queueAnswer(good);
    w.choose(fileOpen);
    EXPECT_EQ(w.files.requests()[0].title, "Open File");
    EXPECT_EQ(w.files.requests()[0].filter, "Tavrin Mesh File(*.tvm)|*.tvm");
    ASSERT_EQ(w.form.getDocument().solids.size(), 2u);
    ASSERT_EQ(w.form.getSceneTree().root().children().size(), 2u);
    EXPECT_EQ(w.form.getSceneTree().root().children()[1]->key, "s2");

    // A corrupt file, chosen with the dialog's closing zero and without its extension.
    std::ofstream(folder.file("bad.tvm")) << "abc";
    w.files.queueAnswer(folder.file("bad") + '\0');
    w.choose(fileOpen);
    ASSERT_EQ(w.prompts.messages().size(), 1u);
    EXPECT_EQ(w.prompts.messages()[0].text,
              "Error Opening " + folder.file("bad.tvm") +
                  ".  The file might be corrupted or was improperly saved.");
    EXPECT_EQ(w.prompts.messages()[0].title, "Opening...");
    EXPECT_EQ(w.prompts.messages()[0].icon, MessageIcon::Critical);
    EXPECT_TRUE(w.form.getDocument().solids.empty());
    EXPECT_TRUE(w.form.getSceneTree().root().children().empty());

    w.choose(fileOpen); // cancelled
    EXPECT_EQ(w.prompts.messages().size(), 1u);
}

TEST(FileCommands, SaveShowsTheHourglassAndReportsAFailure) {
    TestWindow w;
    TempFolder folder;
    w.form.getDocument().solids.push_back(cubeObject());
    w.files.queueAnswer(folder.file("saved.tvm"));
    w.choose(fileSave);
    EXPECT_EQ(w.files.requests()[0].title, "Save File");
    EXPECT_TRUE(fs::exists(folder.file("saved.tvm")));
    EXPECT_TRUE(w.prompts.messages().empty());
    EXPECT_EQ(w.frame.pointers(),
              (std::vector<MousePointer>{MousePointer::Hourglass, MousePointer::Default}));

    w.files.queueAnswer(folder.file("missing/saved.tvm"));
    w.choose(fileSave);
    ASSERT_EQ(w.prompts.messages().size(), 1u);
    EXPECT_EQ(w.prompts.messages()[0].text, "Error saving Tavrin Mesh File");
    EXPECT_EQ(w.prompts.messages()[0].title, "Saving...");
    EXPECT_EQ(w.prompts.messages()[0].icon, MessageIcon::Critical);
    EXPECT_EQ(w.frame.pointers().back(), MousePointer::Default);
}

TEST(FileCommands, ExportInOneWindowSavesTheFourthViewportUnderTheCleanedName) {
    TestWindow w;
    for (const std::string name : {"scene", "scene.BMP", "a\tb.bmp"}) {
        w.files.queueAnswer(name);
        w.choose(fileExport);
    }
    EXPECT_EQ(w.files.requests()[0].title, "Save File");
    EXPECT_EQ(w.files.requests()[0].filter, "Devide Dependent Bitmap(*.bmp)|*.bmp");
    EXPECT_TRUE(w.prompts.inputPrompts().empty());
    EXPECT_EQ(w.canvases[3].savedBitmaps(),
              (std::vector<std::string>{"scene.bmp", "scene.BMP.bmp", "a b.bmp"}));
}

TEST(FileCommands, ExportInFourWindowsAsksUntilTheAnswerNamesAViewport) {
    TestWindow w;
    w.choose({"&Options", "&Set Viewports", "&Four Windows"});
    w.files.queueAnswer("four");
    for (const char* answer : {"0", "5", "-1", "two", "0.4", "0x3", "2,5", "2.5"}) {
        w.prompts.queueInput(answer);
    }
    w.choose(fileExport);
    EXPECT_EQ(w.prompts.inputPrompts().size(), 8u);
    EXPECT_EQ(w.prompts.inputPrompts()[0], "Please Select Viewport to generate bitmap from");
    // 2.5 - 1 rounds to 2, the third viewport.
    EXPECT_EQ(w.canvases[2].savedBitmaps(), (std::vector<std::string>{"four.bmp"}));
    EXPECT_EQ(w.frame.pointers(),
              (std::vector<MousePointer>{MousePointer::Hourglass, MousePointer::Default}));

    // Cancelling the question, or an empty answer, saves nothing.
    for (const std::optional<std::string>& answer : {std::optional<std::string>(), {""}}) {
        w.files.queueAnswer("none");
        w.prompts.queueInput(answer);
        w.choose(fileExport);
    }
    EXPECT_EQ(w.canvases[3].savedBitmaps().size(), 0u);
    EXPECT_EQ(w.frame.pointers().back(), MousePointer::Default);

    w.canvases[3].setSaveSucceeds(false);
    w.files.queueAnswer("full");
    w.prompts.queueInput("4");
    w.choose(fileExport);
    ASSERT_EQ(w.prompts.messages().size(), 1u);
    EXPECT_EQ(w.prompts.messages()[0].text, "Error saving full.bmp");
}

TEST(FileCommands, ExitUnloadsTheWindow) {
    TestWindow w;
    w.choose({"&File", "E&xit"});
    EXPECT_TRUE(w.frame.unloaded());
}
