#include "app/UndoHistory.h"
#include "io/MeshFiles.h"
#include "io/PosixFileSystem.h"
#include "support/TempFolder.h"
#include "support/TestSolids.h"
#include "support/TestWindow.h"

#include <fstream>
#include <gtest/gtest.h>

namespace {

const std::vector<std::string> fileImport = {"&File", "&Import..."};
const std::vector<std::string> fileExportMesh = {"&File", "E&xport Mesh..."};

// The number of solids a mesh file holds, read back as Import reads it.
size_t solidsIn(const std::string& path) {
    return MeshFiles(PosixFileSystem::instance()).open(path).size();
}

} // namespace

TEST(MeshCommands, ImportAppendsTheSolidsWithNodesAsOneStepAndABadFileChangesNothing) {
    TestWindow w;
    TempFolder folder;
    SceneDocument& document = w.form.getDocument();
    document.solids = {makeObject()};
    w.form.rebuildTree();
    MeshFiles(PosixFileSystem::instance())
        .save({makeObject(), makeObject(makeCube(0.5f))}, folder.file("two.obj"), false);

    w.files.queueAnswer(folder.file("two.obj"));
    w.choose(fileImport);
    EXPECT_EQ(w.files.requests()[0].title, "Import Mesh");
    EXPECT_EQ(document.solids.size(), 3u);
    EXPECT_EQ(topNodes(w.form.getSceneTree()),
              (std::vector<std::string>{"s1: Solid 1", "s2: Solid 2", "s3: Solid 3"}));
    EXPECT_EQ(w.form.history().undoName(), "Import two.obj");

    std::ofstream(folder.file("bad.obj")) << "v 1 2\n";
    w.files.queueAnswer(folder.file("bad.obj"));
    w.choose(fileImport);
    ASSERT_EQ(w.prompts.messages().size(), 1u);
    EXPECT_EQ(w.prompts.messages()[0].text,
              "Cannot import " + folder.file("bad.obj") + ": line 1: a number is missing.");
    EXPECT_EQ(document.solids.size(), 3u);
    EXPECT_EQ(w.form.history().stepCount(), 1u);

    w.choose({"&Edit", "&Undo"});
    EXPECT_EQ(document.solids.size(), 1u);
    EXPECT_FALSE(w.form.history().isModified());
}

TEST(MeshCommands, ExportAsksAboutASelectionAndWritesWithoutTouchingTheHistory) {
    TestWindow w;
    TempFolder folder;
    SceneDocument& document = w.form.getDocument();
    document.solids = {makeObject(), makeObject(), makeObject()};
    w.form.rebuildTree();

    // Nothing selected: no question, every solid.
    w.files.queueAnswer(folder.file("all.ply"));
    w.choose(fileExportMesh);
    EXPECT_EQ(w.files.requests()[0].title, "Export Mesh");
    EXPECT_TRUE(w.prompts.messages().empty());
    EXPECT_EQ(solidsIn(folder.file("all.ply")), 3u);
    EXPECT_EQ(w.frame.status(), "Exported all.ply (3 solids)");

    w.form.getSelection().setSelectedSolids({document.solids[1]});
    for (const auto& [answer, name, count] :
         {std::tuple{MessageAnswer::Yes, "one.tvm", 1u}, {MessageAnswer::No, "three.tvm", 3u}}) {
        w.prompts.queueAnswer(answer);
        w.files.queueAnswer(folder.file(name));
        w.choose(fileExportMesh);
        EXPECT_EQ(solidsIn(folder.file(name)), count) << name;
    }
    EXPECT_EQ(w.prompts.messages().size(), 2u);
    EXPECT_EQ(w.frame.status(), "Exported three.tvm (3 solids)");

    // A name of no format, and a folder that is not there: one message each, no file.
    for (const std::string name : {"plain", "missing/x.stl"}) {
        w.files.queueAnswer(folder.file(name));
        w.prompts.queueAnswer(MessageAnswer::No);
        w.choose(fileExportMesh);
    }
    ASSERT_EQ(w.prompts.messages().size(), 6u);
    EXPECT_EQ(w.prompts.messages()[3].text,
              "Cannot export " + folder.file("plain") +
                  ": the name must end in .obj, .ply, .stl, .3mf or .tvm.");
    EXPECT_EQ(w.prompts.messages()[5].text,
              "Cannot export " + folder.file("missing/x.stl") + ": No such file or directory.");
    EXPECT_EQ(folder.entries().size(), 3u);
    EXPECT_FALSE(w.form.history().canUndo());
    EXPECT_FALSE(w.form.history().isModified());
}
