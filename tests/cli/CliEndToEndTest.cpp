#include "app/frmTolvane.h"
#include "cli/CliApp.h"
#include "cli/SvgCanvas.h"
#include "geometry/CPoint3D.h"
#include "geometry/M3Ops.h"
#include "io/TavrinMeshIO.h"
#include "platform/ModalHost.h"
#include "scene/Face3d.h"
#include "scene/Transformed3d.h"
#include "support/FaultyFileSystem.h"
#include "support/TempFolder.h"

#include <QImage>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

std::string readAll(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::shared_ptr<Transformed3d>> openScene(const fs::path& path) {
    std::string name = path.string();
    return TavrinMeshIO().OpenFile(name).value_or(ObjectList{});
}

// A square prism on the grid at (x, z), its curve listed so that the faces point outwards.
std::shared_ptr<Transformed3d> prism(float x, float z, float half, float height) {
    auto object = std::make_shared<Transformed3d>();
    for (const auto& [dx, dz] :
         {std::pair{-half, half}, {half, half}, {half, -half}, {-half, -half}, {-half, half}}) {
        object->AddCurvePoint(x + dx, 0, z + dz);
    }
    Matrix4 up;
    M3Ops::setTranslation(up, 0, height, 0);
    object->SetTransformation(up);
    object->Transform(true);
    object->SetDiffuseCoefficients(0.9f, 0.6f, 0.3f);
    return object;
}

// A closed square standing on a corner in the plane z = 0, its normal +z.
const char* const diamond = "0 0 0\n1 1 0\n0 2 0\n-1 1 0\n0 0 0\n";

#ifdef __SANITIZE_ADDRESS__
const std::string memoryLimit; // the sanitizer's shadow memory alone exceeds any useful limit
#else
// What the tool may take where a file's size must not count: 64 MB.
const std::string memoryLimit = "prlimit --data=67108864";
#endif

class CliEndToEnd : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(TavrinMeshIO().saveFile(
            {prism(0.5f, 0, 0.3f, 0.8f), prism(-0.6f, -0.4f, 0.25f, 0.5f)}, path_));
    }

    // Runs the tool in the test's folder, so that files are named as they are there, giving
    // up after a while rather than waiting for ever. limits go before the tool's name: a
    // limit of resources, say.
    Outcome run(const std::string& arguments, const std::string& out = "",
                const std::string& limits = "") const {
        const std::string command = "cd '" + dir_.string() + "' && timeout 60 " + limits + " '" +
                                    KORVAN_CLI_PATH + "' " + arguments + " >" +
                                    (out.empty() ? "stdout" : out) + " 2>stderr";
        const int raw = std::system(command.c_str());
        return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, readAll(dir_ / "stdout"),
                readAll(dir_ / "stderr")};
    }

    // Runs the tool, expecting it to succeed without a word on standard error.
    Outcome succeed(const std::string& arguments, const std::string& limits = "") const {
        Outcome outcome = run(arguments, "", limits);
        EXPECT_EQ(outcome.status, 0) << arguments;
        EXPECT_EQ(outcome.err, "") << arguments;
        return outcome;
    }

    TempFolder folder_;
    const fs::path dir_ = folder_.path;
    // The scene file, as a path and as an argument.
    const std::string path_ = (dir_ / "two prisms.tvm").string();
    const std::string scene_ = "'two prisms.tvm'";
};

} // namespace

TEST_F(CliEndToEnd, RendersPngAndDescribesTheFile) {
    EXPECT_EQ(succeed("render " + scene_ + " -o iso.png --size 320x240").out, "");
    const QImage image = QImage((dir_ / "iso.png").c_str()).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(image.size(), QSize(320, 240));
    QImage flat = image.copy();
    flat.fill(image.pixel(0, 0));
    EXPECT_NE(image, flat);

    // Each prism: its five curve points at two heights, two triangles a side and two caps.
    EXPECT_EQ(succeed("info " + scene_).out,
              "{\"file\": \"two prisms.tvm\", \"objects\": 2, \"items\": [{\"points\": 10, "
              "\"faces\": 10}, {\"points\": 10, \"faces\": 10}]}\n");
    const Outcome help = run("--help");
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.out.starts_with("Usage: korvan-cli render"));
    EXPECT_EQ(run("info --version").out, "korvan-cli 2.0\n");
}

TEST_F(CliEndToEnd, DefaultRenderIsWhatTheEditorShowsAtStartUpWithoutFacelessObjects) {
    const auto faceless = [](std::vector<float> coordinates) {
        auto object = std::make_shared<Transformed3d>();
        object->setSolid(std::make_shared<Solid3d>());
        object->getSolid()->addPointsArray(coordinates);
        return object;
    };
    ASSERT_TRUE(TavrinMeshIO().saveFile({faceless({}), prism(0.5f, 0, 0.3f, 0.8f),
                                         faceless({5, 5, 5, -5, -5, -5}),
                                         prism(-0.6f, -0.4f, 0.25f, 0.5f), faceless({})},
                                        (dir_ / "mixed.tvm").string()));
    ASSERT_EQ(run("render mixed.tvm -o default.svg").status, 0);

    struct NoDialogs : ModalHost {
        void showModal(ModalDialog&) override {}
    } dialogs;
    frmTolvane editor(dialogs);
    SvgCanvas top(400, 300), side(400, 300), front(400, 300), single(800, 600);
    editor.attachCanvases({&top, &side, &front, &single});
    editor.getDocument().solids = openScene(path_);
    editor.redrawAllViewports();
    EXPECT_EQ(readAll(dir_ / "default.svg"), single.svg());
}

TEST_F(CliEndToEnd, FailuresAreOneLineWithNonZeroStatusAndWriteNothing) {
    const std::string bytes = readAll(path_);
    std::ofstream(dir_ / "cut.tvm", std::ios::binary) << bytes.substr(0, bytes.size() / 2);
    fs::create_symlink("/dev/zero", dir_ / "zero.tvm");
    fs::create_symlink("/dev/full", dir_ / "full.png");
    std::ofstream(dir_ / "diamond.txt") << diamond;
    std::ofstream(dir_ / "pair.txt") << "0 0 0\n1 0\n1 0 1\n0 0 0\n";
    std::ofstream(dir_ / "stop.macro") << "resize 800 600\ndialog \"Extrude\" press mnuCancel\n";
    std::ofstream(dir_ / "odd.macro") << "resize 800 600\njump\x7f\xff 1\n";
    std::ofstream(dir_ / "resize.macro") << "resize 800 600\n";
    // Sparse: the size counts, not the bytes.
    fs::create_directories(dir_ / "big");
    std::ofstream(dir_ / "big" / "huge.txt") << diamond;
    fs::resize_file(dir_ / "big" / "huge.txt", 1 << 30);
    // The third drawing cannot replace a folder: nothing at all is replaced.
    std::ofstream(dir_ / "out.tvm") << "old scene";
    fs::create_directories(dir_ / "svg" / "viewport2.svg");
    // The .obj is written only with its library, which cannot replace a folder.
    std::ofstream(dir_ / "out.obj") << "old mesh";
    fs::create_directories(dir_ / "out.mtl");
    std::ofstream(dir_ / "cut.ply") << "ply\nformat ascii 1.0\nelement vertex 2\nproperty float x\n"
                                       "property float y\nproperty float z\nend_header\n0 0 0\n1\n";

    const std::string extrude = "extrude diamond.txt -o out.tvm";
    struct Case {
        std::string arguments;
        std::string message; // after the tool's name, before the end of the line
        int status = 1;
        std::string out = "";
    };
    const std::vector<Case> cases = {
        {"render missing.tvm -o out.png", "cannot open 'missing.tvm': no such file or directory"},
        {"info zero.tvm", "cannot open 'zero.tvm': not a regular file"},
        {"info cut.tvm",
         "cannot read 'cut.tvm': the file might be corrupted or was improperly saved"},
        {"info missing.stl", "cannot open 'missing.stl': no such file or directory"},
        {"render " + scene_ + " -o full.png", "cannot write 'full.png': no space left on device"},
        {"info " + scene_, "cannot write to standard output: no space left on device", 1,
         "/dev/full"},
        {"render " + scene_ + " -o out.jpg", "output file 'out.jpg' must end in .png, .bmp or .svg",
         2},
        {"paint " + scene_, "unknown command 'paint' (try --help)", 2},
        {extrude + " --length abc",
         "Invalid Extrusion Length.  Value must be present and numeric."},
        {extrude + " --transform 'Rotate(0,\x80,1)'",
         "Invalid Additional Transformation Rotate(0,?,1).  Its three values must be present and "
         "numeric."},
        {"extrude pair.txt -o out.tvm",
         "cannot read 'pair.txt' line 2: expected three numbers x y z, found 2 values"},
        {"extrude big/huge.txt -o out.tvm",
         "cannot read 'big/huge.txt': a profile file may not exceed 4194304 bytes"},
        {"extrude big -o out.tvm", "cannot open 'big': is a directory"},
        {extrude + " --view top", "unknown option '--view' (try --help)", 2},
        {"extrude diamond.txt", "extrude needs an output file: -o OUT.tvm", 2},
        {"replay stop.macro -o out.tvm", "replay of 'stop.macro' stopped: line 2: an action in "
                                         "the dialog \"Extrude\", but nothing asks for it"},
        {"replay odd.macro -o out.tvm", "cannot read 'odd.macro' line 2: unknown action jump??"},
        {"replay resize.macro -o out.tvm --svg-dir none",
         "cannot use 'none' (--svg-dir): no such file or directory"},
        {"replay resize.macro -o out.tvm --sandbox diamond.txt",
         "cannot use 'diamond.txt' (--sandbox): not a directory"},
        {"replay resize.macro -o out.tvm --svg-dir svg",
         "cannot write 'svg/viewport2.svg': is a directory"},
        {"convert " + scene_ + " out.obj", "cannot write 'out.mtl': is a directory"},
        {"convert cut.ply out.tvm", "cannot read 'cut.ply': the file ends early"},
        {"convert missing.obj out.tvm", "cannot open 'missing.obj': no such file or directory"},
        {"convert " + scene_ + " out.ply --ascii", "--ascii applies to an .stl output only", 2},
        {"convert out.png out.tvm",
         "input file 'out.png' must end in .tvm, .obj, .ply, .stl, .off, .gltf, .glb or .3mf", 2},
        {"convert " + scene_ + " out.tvm --selected 2,3",
         "--selected 3: 'two prisms.tvm' has 2 solids", 2},
        {"convert " + scene_ + " out.tvm --selected 2,0",
         "invalid value '2,0' for --selected (expected solid numbers from 1, such as 1,3)", 2},
    };
    for (const Case& c : cases) {
        const Outcome outcome = run(c.arguments, c.out, memoryLimit);
        EXPECT_EQ(outcome.status, c.status) << c.arguments;
        EXPECT_EQ(outcome.out, "") << c.arguments;
        EXPECT_EQ(outcome.err, "korvan-cli: " + c.message + "\n") << c.arguments;
    }
    EXPECT_FALSE(fs::exists(dir_ / "out.png"));
    EXPECT_TRUE(fs::is_symlink(dir_ / "full.png"));
    EXPECT_EQ(readAll(dir_ / "out.tvm"), "old scene");
    EXPECT_EQ(readAll(dir_ / "out.obj"), "old mesh");
    EXPECT_EQ(std::distance(fs::directory_iterator(dir_ / "svg"), {}), 1);
}

TEST_F(CliEndToEnd, ConvertsTwistedRecolouredSolidsThroughObjAndPlyBackToTheSameFile) {
    std::ofstream(dir_ / "diamond.txt") << diamond;
    succeed("extrude diamond.txt --subdivisions 3 --transform 'Rotate(0,0,0.6)' --diffuse "
            "200,30,90 --specular-k 37 --specular-n 12 -o twisted.tvm --add-to " +
            scene_);
    for (const std::string mesh : {"twisted.obj", "twisted.PLY"}) {
        succeed("convert twisted.tvm " + mesh);
        succeed("convert " + mesh + " back.tvm");
        EXPECT_EQ(readAll(dir_ / "back.tvm"), readAll(dir_ / "twisted.tvm")) << mesh;
    }
    EXPECT_TRUE(readAll(dir_ / "twisted.mtl").starts_with("# Written by Korvan"));
    // Binary STL holds 50 bytes per triangle it counts; --ascii asks for its text form.
    succeed("convert twisted.tvm twisted.stl");
    succeed("convert twisted.tvm text.stl --ascii");
    const std::string binary = readAll(dir_ / "twisted.stl");
    ASSERT_GE(binary.size(), 84u);
    EXPECT_EQ(binary.size(),
              84 + 50 * (static_cast<uint8_t>(binary[80]) |
                         static_cast<uint32_t>(static_cast<uint8_t>(binary[81])) << 8));
    EXPECT_TRUE(readAll(dir_ / "text.stl").starts_with("solid korvan\n facet normal"));
}

// Swapped twice, the two prisms are the scene again; a solid left out would be missing.
TEST_F(CliEndToEnd, ConvertSelectedWritesOnlyTheNamedSolidsInTheGivenOrder) {
    succeed("convert " + scene_ + " swapped.tvm --selected 2,1");
    succeed("convert swapped.tvm back.tvm --selected 2,1");
    EXPECT_NE(readAll(dir_ / "swapped.tvm"), readAll(path_));
    EXPECT_EQ(readAll(dir_ / "back.tvm"), readAll(path_));
}

TEST_F(CliEndToEnd, InfoAndRenderTakeMemoryInProportionToTheFile) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the address sanitizer's shadow memory alone exceeds the limit";
#endif
    // 300,000 objects without points or faces: 2.4 MB, where building them all would take
    // over 100 MB. The count, 0x000493E0, is stored little-endian.
    std::ofstream(dir_ / "many.tvm", std::ios::binary)
        << std::string("\xE0\x93\x04\0", 4) + std::string(8 * 300000, '\0');
    EXPECT_TRUE(
        succeed("info many.tvm", memoryLimit)
            .out.starts_with(
                "{\"file\": \"many.tvm\", \"objects\": 300000, \"items\": [{\"points\": 0, "));
    succeed("render many.tvm -o many.svg", memoryLimit);
}

// A refusal the superuser who runs the build never meets, injected in the tool's file calls,
// and standard output that fails as it is flushed.
TEST_F(CliEndToEnd, RefusedFilesAndAFailingStandardOutputAreNamedAsSuch) {
    FaultyFileSystem unreadable;
    unreadable.failAll(FaultyFileSystem::Call::openToRead, std::errc::permission_denied);
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(CliApp(unreadable).run({"info", path_}, out, err), 1);
    EXPECT_EQ(err.str(), "korvan-cli: cannot open '" + path_ + "': permission denied\n");

    std::ostream broken(nullptr);
    std::ostringstream brokenErr;
    EXPECT_EQ(CliApp().run({"--help"}, broken, brokenErr), 1);
    EXPECT_EQ(brokenErr.str(), "korvan-cli: cannot write to standard output\n");
}

TEST_F(CliEndToEnd, ExtrudesAProfileAsTheDialogDoesAfterTheScenesSolids) {
    // Out of the other side, from a CRLF file with a blank line, after the two prisms.
    std::ofstream(dir_ / "crlf.txt") << "0 0 0\r\n1 1 0\r\n\r\n0\t2 0\r\n-1 1 0\r\n0 0 0";
    EXPECT_EQ(succeed("extrude crlf.txt --mode out --length 2 --no-caps --diffuse 255,0,128 "
                      "--transform 'Scale(0.5,0.5,0.5)' --specular-k 37 -o added.tvm --add-to " +
                      scene_)
                  .out,
              "");
    const auto scene = openScene(dir_ / "added.tvm");
    ASSERT_EQ(scene.size(), 3u);
    // One segment for the translation and one for the scaling, no caps.
    const FaceList sides = scene[2]->getFaces();
    ASSERT_EQ(sides.size(), 16u);
    EXPECT_FLOAT_EQ(sides.front()->DiffuseKr, 255.0f / 256.0f);
    EXPECT_FLOAT_EQ(sides.front()->DiffuseKg, 0.0f);
    EXPECT_FLOAT_EQ(sides.front()->DiffuseKb, 128.0f / 256.0f);
    EXPECT_FLOAT_EQ(sides.front()->AmbientKr, 0.5f);
    EXPECT_FLOAT_EQ(sides.front()->SpecularK, 0.37f);
    float low = 0;
    for (const auto& point : scene[2]->getPoints()) {
        low = std::min(low, point->getRecord().coord.z);
    }
    EXPECT_FLOAT_EQ(low, -2.0f);

    // The normal of a profile on the ground is parallel to the y axis, which the vectors'
    // spherical form cannot hold: the editor says so and extrudes all the same.
    std::ofstream(dir_ / "ground.txt") << "0 0 0\n1 0 0\n1 0 1\n0 0 1\n0 0 0\n";
    const Outcome ground = run("extrude ground.txt -o ground.tvm");
    EXPECT_EQ(ground.status, 0);
    EXPECT_EQ(ground.err, "korvan-cli: warning: 3D Vector Cartesian->Spherical uncalculatable!\n");
    EXPECT_EQ(openScene(dir_ / "ground.tvm").size(), 1u);
}

// A session recorded in the editor: a workplane, a profile clicked onto it, two extrusions
// (one turning at every step), a face's properties with a colour, and a save to a folder that
// is not there; the sandbox takes the save. Then a solid deleted, that and the face's
// properties undone, the properties redone, and the same file saved again: the document is
// the one saved before.
TEST_F(CliEndToEnd, ReplaysAnEditorSessionToTheFileTheEditorSaved) {
    const std::string editorFile = readAll(fs::path(KORVAN_CLI_DATA) / "editor-session.tvm");
    std::string macro = readAll(fs::path(KORVAN_CLI_DATA) / "editor-session.macro");
    for (size_t saved = macro.find("SAVED"); saved != std::string::npos;
         saved = macro.find("SAVED", saved)) {
        macro.replace(saved, 5, "/nowhere/saved.tvm");
    }
    macro += "menu \"&File\" \"Export &Image...\"\ndialog \"Export Image\" press cmdExport\n"
             "file \"/nowhere/picture.png\"\n";
    std::ofstream(dir_ / "session.macro") << macro;
    fs::create_directories(dir_ / "sandbox");

    succeed("replay session.macro -o replayed.tvm --svg-dir . --sandbox sandbox");
    EXPECT_EQ(readAll(dir_ / "sandbox" / "saved.tvm"), editorFile);
    EXPECT_EQ(readAll(dir_ / "replayed.tvm"), editorFile);
    // The one viewport shown draws the solids; the hidden ones are only projected.
    EXPECT_NE(readAll(dir_ / "viewport3.svg").find("<polygon"), std::string::npos);
    // The picture of the one viewport, at its size in the start-up window.
    EXPECT_EQ(QImage(QString::fromStdString((dir_ / "sandbox" / "picture.png").string())).size(),
              QSize(1024, 781));
}
