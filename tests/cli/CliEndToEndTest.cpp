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

#include <QImage>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>
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

class CliEndToEnd : public ::testing::Test {
protected:
    void SetUp() override {
        fs::create_directories(dir_);
        ASSERT_TRUE(TavrinMeshIO().saveFile(
            {prism(0.5f, 0, 0.3f, 0.8f), prism(-0.6f, -0.4f, 0.25f, 0.5f)}, path_));
    }
    void TearDown() override { fs::remove_all(dir_); }

    // The quoted path of a file in the test's folder.
    std::string at(const std::string& name) const { return "'" + (dir_ / name).string() + "'"; }

    // Runs the tool, giving up after a while rather than waiting for ever.
    // limits go before the tool's name: a limit of resources, say.
    Outcome run(const std::string& arguments, const std::string& out = "",
                const std::string& limits = "") const {
        const std::string command = "timeout 60 " + limits + " '" + KORVAN_CLI_PATH + "' " +
                                    arguments + " >" + (out.empty() ? at("stdout") : out) + " 2>" +
                                    at("stderr");
        const int raw = std::system(command.c_str());
        return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, readAll(dir_ / "stdout"),
                readAll(dir_ / "stderr")};
    }

    const fs::path dir_ = fs::temp_directory_path() / ("korvan-cli-" + std::to_string(getpid()));
    // The scene file, as a path and as an argument.
    const std::string path_ = (dir_ / "two prisms.tvm").string();
    const std::string scene_ = at("two prisms.tvm");
};

} // namespace

TEST_F(CliEndToEnd, RendersPngAndSvgAndDescribesTheFile) {
    const Outcome png = run("render " + scene_ + " -o " + at("iso.png") + " --size 320x240");
    EXPECT_EQ(png.status, 0);
    EXPECT_EQ(png.out, "");
    EXPECT_EQ(png.err, "");
    const QImage image = QImage((dir_ / "iso.png").c_str()).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(image.size(), QSize(320, 240));
    QImage flat = image.copy();
    flat.fill(image.pixel(0, 0));
    EXPECT_NE(image, flat);

    const Outcome svg =
        run("render --view top --parallel --no-grid " + scene_ + " -o " + at("a.svg"));
    EXPECT_EQ(svg.status, 0) << svg.err;
    const std::string text = readAll(dir_ / "a.svg");
    EXPECT_EQ(
        text.rfind("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"800\" height=\"600\"", 0),
        0u);
    EXPECT_NE(text.find("<polygon"), std::string::npos);

    const Outcome info = run("info " + scene_);
    EXPECT_EQ(info.status, 0);
    EXPECT_EQ(info.err, "");
    // Each prism: its five curve points at two heights, two triangles a side and two caps.
    EXPECT_EQ(info.out, "{\"file\": \"" + path_ +
                            "\", \"objects\": 2, \"items\": [{\"points\": 10, \"faces\": 10}, "
                            "{\"points\": 10, \"faces\": 10}]}\n");
}

TEST_F(CliEndToEnd, DefaultRenderIsWhatTheEditorShowsAtStartUp) {
    const Outcome rendered = run("render " + scene_ + " -o " + at("default.svg"));
    ASSERT_EQ(rendered.status, 0) << rendered.err;

    struct NoDialogs : ModalHost {
        void showModal(ModalDialog&) override {}
    } dialogs;
    frmTolvane editor(dialogs);
    SvgCanvas top(400, 300), side(400, 300), front(400, 300), single(800, 600);
    editor.attachCanvases({&top, &side, &front, &single});
    std::string name = path_;
    editor.getDocument().solids = TavrinMeshIO().OpenFile(name).value();
    editor.redrawAllViewports();
    EXPECT_EQ(readAll(dir_ / "default.svg"), single.svg());
}

TEST_F(CliEndToEnd, FailuresAreOneLineWithNonZeroStatus) {
    // A file that ends before its counts say is corrupt.
    const std::string bytes = readAll(path_);
    std::ofstream(dir_ / "cut.tvm", std::ios::binary) << bytes.substr(0, bytes.size() / 2);
    fs::create_symlink("loop.tvm", dir_ / "loop.tvm");
    fs::create_symlink("/dev/zero", dir_ / "zero.tvm");
    ASSERT_EQ(::mkfifo((dir_ / "pipe.tvm").c_str(), 0600), 0);
    fs::create_symlink("/dev/full", dir_ / "full.png");
    const std::string render = "render " + scene_ + " -o " + at("out.png");
    const std::string renderFull = "render " + scene_ + " -o " + at("full.png");
    const std::string cannotOpen = "korvan-cli: cannot open '" + (dir_ / "").string();
    const std::vector<std::tuple<std::string, std::string, std::string>> cases = {
        {"render " + at("missing.tvm") + " -o " + at("out.png"), "",
         cannotOpen + "missing.tvm': no such file or directory\n"},
        {"info " + at("loop.tvm"), "",
         cannotOpen + "loop.tvm': too many levels of symbolic links\n"},
        {"info " + at("zero.tvm"), "", cannotOpen + "zero.tvm': not a regular file\n"},
        {"info " + at("pipe.tvm"), "", cannotOpen + "pipe.tvm': not a regular file\n"},
        {"info " + at("cut.tvm"), "",
         "korvan-cli: cannot read '" + (dir_ / "cut.tvm").string() +
             "': the file might be corrupted or was improperly saved\n"},
        {renderFull, "",
         "korvan-cli: cannot write '" + (dir_ / "full.png").string() +
             "': no space left on device\n"},
        {"info " + scene_, "/dev/full",
         "korvan-cli: cannot write to standard output: no space left on device\n"},
        {"--help", "/dev/full",
         "korvan-cli: cannot write to standard output: no space left on device\n"},
        {render + " --shiny", "", "korvan-cli: unknown option '--shiny' (try --help)\n"},
        {render + " --size 10x", "",
         "korvan-cli: invalid value '10x' for --size (expected WIDTHxHEIGHT, each 1 to "
         "16384)\n"},
        {render + " --zoom -2", "",
         "korvan-cli: invalid value '-2' for --zoom (expected a positive number)\n"},
        {"render " + scene_ + " -o " + at("out.jpg"), "",
         "korvan-cli: output file '" + (dir_ / "out.jpg").string() +
             "' must end in .png, .bmp or .svg\n"},
        {"paint " + scene_, "", "korvan-cli: unknown command 'paint' (try --help)\n"},
    };
    for (const auto& [arguments, out, message] : cases) {
        const Outcome outcome = run(arguments, out);
        EXPECT_NE(outcome.status, 0) << arguments;
        EXPECT_EQ(outcome.out, "") << arguments;
        EXPECT_EQ(outcome.err, message) << arguments;
    }
    EXPECT_FALSE(fs::exists(dir_ / "out.png"));
    EXPECT_TRUE(fs::is_symlink(dir_ / "full.png"));

    const Outcome help = run("--help");
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.err, "");
    EXPECT_EQ(help.out.rfind("Usage: korvan-cli render", 0), 0u);
}

TEST_F(CliEndToEnd, InfoAndRenderTakeMemoryInProportionToTheFile) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the address sanitizer's shadow memory alone exceeds the limit";
#endif
    // 300,000 objects without points or faces: 2.4 MB, where building them all would take
    // over 100 MB.
    const int32_t count = 300000;
    std::string bytes(4 + 8 * static_cast<size_t>(count), '\0');
    for (int i = 0; i < 4; ++i) {
        bytes[static_cast<size_t>(i)] = static_cast<char>(count >> (8 * i));
    }
    std::ofstream(dir_ / "many.tvm", std::ios::binary) << bytes;
    const std::string limit = "prlimit --data=67108864";
    const Outcome info = run("info " + at("many.tvm"), "", limit);
    EXPECT_EQ(info.status, 0);
    EXPECT_EQ(info.err, "");
    EXPECT_EQ(info.out.rfind("{\"file\": \"" + (dir_ / "many.tvm").string() +
                                 "\", \"objects\": 300000, \"items\": [{\"points\": 0, ",
                             0),
              0u);
    const Outcome render = run("render " + at("many.tvm") + " -o " + at("many.svg"), "", limit);
    EXPECT_EQ(render.status, 0);
    EXPECT_EQ(render.err, "");
}

TEST_F(CliEndToEnd, ObjectsWithoutFacesChangeNothingInThePicture) {
    const auto faceless = [](std::vector<float> coordinates) {
        auto object = std::make_shared<Transformed3d>();
        object->setSolid(std::make_shared<Solid3d>());
        object->getSolid()->addPointsArray(coordinates);
        return object;
    };
    const std::string mixed = (dir_ / "mixed.tvm").string();
    ASSERT_TRUE(TavrinMeshIO().saveFile({faceless({}), prism(0.5f, 0, 0.3f, 0.8f),
                                         faceless({5, 5, 5, -5, -5, -5}),
                                         prism(-0.6f, -0.4f, 0.25f, 0.5f), faceless({})},
                                        mixed));
    for (const std::string view : {"iso", "front"}) {
        EXPECT_EQ(run("render " + scene_ + " -o " + at("plain.svg") + " --view " + view).status, 0);
        EXPECT_EQ(
            run("render " + at("mixed.tvm") + " -o " + at("mixed.svg") + " --view " + view).status,
            0);
        EXPECT_EQ(readAll(dir_ / "mixed.svg"), readAll(dir_ / "plain.svg")) << view;
    }
}

// Failures the superuser who runs the build never meets, injected in the tool's file calls.
TEST_F(CliEndToEnd, RefusedFilesAreNamedAsSuchAndAFailedWriteKeepsTheOldOutput) {
    const auto runWith = [](FileSystem& files, const std::vector<std::string>& args) {
        std::ostringstream out;
        std::ostringstream err;
        const int status = CliApp(files).run(args, out, err);
        return Outcome{status, out.str(), err.str()};
    };
    FaultyFileSystem unreadable;
    unreadable.failAll(FaultyFileSystem::Call::openToRead, std::errc::permission_denied);
    const Outcome refused = runWith(unreadable, {"info", path_});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, "korvan-cli: cannot open '" + path_ + "': permission denied\n");

    const std::string output = (dir_ / "out.svg").string();
    std::ofstream(output) << "old picture";
    FaultyFileSystem fullDisk;
    fullDisk.failAll(FaultyFileSystem::Call::write, std::errc::no_space_on_device);
    const Outcome full = runWith(fullDisk, {"render", path_, "-o", output});
    EXPECT_EQ(full.status, 1);
    EXPECT_EQ(full.err, "korvan-cli: cannot write '" + output + "': no space left on device\n");
    EXPECT_EQ(readAll(output), "old picture");
    EXPECT_EQ(std::distance(fs::directory_iterator(dir_), {}), 2); // the scene and out.svg

    // Standard output that fails as it is flushed.
    std::ostringstream err;
    std::ostream broken(nullptr);
    EXPECT_EQ(CliApp().run({"--help"}, broken, err), 1);
    EXPECT_EQ(err.str(), "korvan-cli: cannot write to standard output\n");
}

namespace {

// A closed square standing on a corner in the plane z = 0, its normal +z.
const char* const diamond = "0 0 0\n1 1 0\n0 2 0\n-1 1 0\n0 0 0\n";

// The lowest and highest z of the object's points.
std::pair<float, float> zRange(const Transformed3d& object) {
    float low = 0;
    float high = 0;
    for (const auto& point : object.getPoints()) {
        low = std::min(low, point->getRecord().coord.z);
        high = std::max(high, point->getRecord().coord.z);
    }
    return {low, high};
}

std::vector<std::shared_ptr<Transformed3d>> openScene(const fs::path& path) {
    std::string name = path.string();
    return TavrinMeshIO().OpenFile(name).value_or(ObjectList{});
}

} // namespace

TEST_F(CliEndToEnd, ExtrudesAProfileAsTheDialogDoesAfterTheScenesSolids) {
    std::ofstream(dir_ / "diamond.txt") << diamond;
    const Outcome made = run("extrude " + at("diamond.txt") + " -o " + at("diamond.tvm") +
                             " --subdivisions 2 --specular-k 37");
    EXPECT_EQ(made.status, 0);
    EXPECT_EQ(made.out, "");
    EXPECT_EQ(made.err, "");
    const auto solids = openScene(dir_ / "diamond.tvm");
    ASSERT_EQ(solids.size(), 1u);
    // Two segments of the five curve points at both their ends; two triangles per edge in
    // each segment and the two caps.
    EXPECT_EQ(solids[0]->getPoints().size(), 20u);
    const FaceList faces = solids[0]->getFaces();
    ASSERT_EQ(faces.size(), 18u);
    EXPECT_FLOAT_EQ(faces.back()->SpecularK, 0.37f);
    EXPECT_FLOAT_EQ(faces.back()->AmbientKr, 0.5f);
    EXPECT_FLOAT_EQ(zRange(*solids[0]).second, 1.0f);

    // Out of the other side, from a CRLF file with a blank line, after the two prisms.
    std::ofstream(dir_ / "crlf.txt") << "0 0 0\r\n1 1 0\r\n\r\n0\t2 0\r\n-1 1 0\r\n0 0 0";
    const Outcome added =
        run("extrude " + at("crlf.txt") + " --mode out --length 2 --no-caps --diffuse 255,0,128" +
            " --transform 'Scale(0.5,0.5,0.5)' -o " + at("added.tvm") + " --add-to " + scene_);
    EXPECT_EQ(added.status, 0) << added.err;
    const auto scene = openScene(dir_ / "added.tvm");
    ASSERT_EQ(scene.size(), 3u);
    EXPECT_EQ(scene[0]->getFaces().size(), 10u);
    EXPECT_EQ(scene[1]->getFaces().size(), 10u);
    // One segment for the translation and one for the scaling, no caps.
    EXPECT_EQ(scene[2]->getPoints().size(), 20u);
    const FaceList sides = scene[2]->getFaces();
    ASSERT_EQ(sides.size(), 16u);
    EXPECT_FLOAT_EQ(sides.front()->DiffuseKr, 255.0f / 256.0f);
    EXPECT_FLOAT_EQ(sides.front()->DiffuseKg, 0.0f);
    EXPECT_FLOAT_EQ(sides.front()->DiffuseKb, 128.0f / 256.0f);
    EXPECT_FLOAT_EQ(zRange(*scene[2]).first, -2.0f);

    // The normal of a profile on the ground is parallel to the y axis, which the vectors'
    // spherical form cannot hold: the editor says so and extrudes all the same.
    std::ofstream(dir_ / "ground.txt") << "0 0 0\n1 0 0\n1 0 1\n0 0 1\n0 0 0\n";
    const Outcome ground = run("extrude " + at("ground.txt") + " -o " + at("ground.tvm"));
    EXPECT_EQ(ground.status, 0);
    EXPECT_EQ(ground.err, "korvan-cli: warning: 3D Vector Cartesian->Spherical uncalculatable!\n");
    EXPECT_EQ(openScene(dir_ / "ground.tvm").size(), 1u);
}

TEST_F(CliEndToEnd, RefusedExtrusionsSayWhyAndWriteNothing) {
    std::ofstream(dir_ / "diamond.txt") << diamond;
    std::ofstream(dir_ / "flat.txt") << "0 0 0\n1 0 0\n0 0 0\n";
    std::ofstream(dir_ / "short.txt") << "0 0 0\n1 0 0\n\n";
    std::ofstream(dir_ / "pair.txt") << "0 0 0\n1 0\n1 0 1\n0 0 0\n";
    std::ofstream(dir_ / "word.txt") << "0 0 0\n1 0 0\n1 0 1e39\n0 0 0\n";
    // Sparse: the size counts, not the bytes.
    fs::create_directories(dir_ / "big");
    std::ofstream(dir_ / "big" / "huge.txt") << diamond;
    fs::resize_file(dir_ / "big" / "huge.txt", 1 << 30);
#ifdef __SANITIZE_ADDRESS__
    const std::string limit; // the sanitizer's shadow memory alone exceeds any useful limit
#else
    // The huge profile is refused before it is read: reading it would exceed this.
    const std::string limit = "prlimit --data=67108864";
#endif
    const std::string to = " -o " + at("out.tvm");
    const std::string extrude = "extrude " + at("diamond.txt") + to;
    const auto cannotRead = [&](const std::string& name, const std::string& what) {
        return "korvan-cli: cannot read '" + (dir_ / name).string() + "'" + what + "\n";
    };
    const std::vector<std::pair<std::string, std::string>> cases = {
        {extrude + " --length abc",
         "korvan-cli: Invalid Extrusion Length.  Value must be present and numeric.\n"},
        {extrude + " --subdivisions 0.5",
         "korvan-cli: Invalid Extrusion Increment.  Value must be present and greater than or "
         "equal to 1.\n"},
        {extrude + " --transform 'Rotate(0,x,1)'",
         "korvan-cli: Invalid Additional Transformation Rotate(0,x,1).  Its three values must be "
         "present and numeric.\n"},
        {"extrude " + at("flat.txt") + to,
         "korvan-cli: Profile is of un-extrudable shape.  Please redraw or alter profile.\n"},
        {"extrude " + at("short.txt") + to,
         cannotRead("short.txt", ": a profile needs at least 3 points (a closed profile repeats "
                                 "its first point), found 2")},
        {"extrude " + at("pair.txt") + to,
         cannotRead("pair.txt", " line 2: expected three numbers x y z, found 2 values")},
        {"extrude " + at("word.txt") + to,
         cannotRead("word.txt", " line 3: value 3 is not a number that a single float can hold")},
        {"extrude " + at("big/huge.txt") + to,
         cannotRead("big/huge.txt", ": a profile file may not exceed 4194304 bytes")},
        {"extrude " + at("big") + to,
         "korvan-cli: cannot open '" + (dir_ / "big").string() + "': is a directory\n"},
        {extrude + " --add-to " + at("missing.tvm"), "korvan-cli: cannot open '" +
                                                         (dir_ / "missing.tvm").string() +
                                                         "': no such file or directory\n"},
    };
    for (const auto& [arguments, message] : cases) {
        const Outcome outcome = run(arguments, "", limit);
        EXPECT_EQ(outcome.status, 1) << arguments;
        EXPECT_EQ(outcome.err, message) << arguments;
        EXPECT_FALSE(fs::exists(dir_ / "out.tvm")) << arguments;
    }
}

TEST_F(CliEndToEnd, BadExtrusionOptionsAreUsageErrors) {
    std::ofstream(dir_ / "diamond.txt") << diamond;
    const std::string extrude = "extrude " + at("diamond.txt") + " -o " + at("out.tvm");
    const std::vector<std::pair<std::string, std::string>> cases = {
        {extrude + " --ambient 256,0,0",
         "invalid value '256,0,0' for --ambient (expected R,G,B, each a whole number 0 to 255)"},
        {extrude + " --diffuse 1,2", "invalid value '1,2' for --diffuse (expected R,G,B, each a "
                                     "whole number 0 to 255)"},
        {extrude + " --diffuse 1,2,3,4", "invalid value '1,2,3,4' for --diffuse (expected R,G,B, "
                                         "each a whole number 0 to 255)"},
        {extrude + " --specular-n 101",
         "invalid value '101' for --specular-n (expected a whole number 0 to 100)"},
        {extrude + " --mode sideways",
         "invalid value 'sideways' for --mode (expected in, out or split)"},
        {extrude + " --transform 'Twist(1,2,3)'",
         "invalid value 'Twist(1,2,3)' for --transform (expected Translate(X,Y,Z), "
         "Rotate(X,Y,Z) or Scale(X,Y,Z))"},
        {extrude + " --view top", "unknown option '--view' (try --help)"},
        {"extrude " + at("diamond.txt"), "extrude needs an output file: -o OUT.tvm"},
        {"extrude " + at("diamond.txt") + " -o " + at("out.obj"),
         "output file '" + (dir_ / "out.obj").string() +
             "' must end in .tvm and consist of printable ASCII characters"},
        {"extrude -o " + at("out.tvm"), "no profile file given (try --help)"},
    };
    for (const auto& [arguments, message] : cases) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_EQ(outcome.err, "korvan-cli: " + message + "\n") << arguments;
    }
    EXPECT_FALSE(fs::exists(dir_ / "out.tvm"));
}

// A session recorded in the editor: a workplane, a profile clicked onto it, two extrusions
// (one turning at every step), a face's properties with a colour, and a save.
TEST_F(CliEndToEnd, ReplaysAnEditorSessionToTheFileTheEditorSaved) {
    const std::string editorFile = readAll(fs::path(KORVAN_CLI_DATA) / "editor-session.tvm");
    std::string macro = readAll(fs::path(KORVAN_CLI_DATA) / "editor-session.macro");
    const size_t saved = macro.find("SAVED");
    ASSERT_NE(saved, std::string::npos);
    macro.replace(saved, 5, (dir_ / "saved.tvm").string());
    std::ofstream(dir_ / "session.macro") << macro;

    const Outcome outcome =
        run("replay " + at("session.macro") + " -o " + at("replayed.tvm") + " --svg-dir " + at(""));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(readAll(dir_ / "saved.tvm"), editorFile);
    EXPECT_EQ(readAll(dir_ / "replayed.tvm"), editorFile);
    // The one viewport shown draws the solids; the hidden ones are only projected.
    EXPECT_NE(readAll(dir_ / "viewport3.svg").find("<polygon"), std::string::npos);
}

TEST_F(CliEndToEnd, StopsAReplayAtTheLineThatDoesNotFitAndWritesNothing) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"resize 800 600\ndialog \"Extrude\" press mnuCancel\n",
         "line 2: an action in the dialog \"Extrude\", but nothing asks for it"},
        {"menu \"&Create\" \"&WorkPlane\" \"&Parameter Creation\"\n"
         "dialog \"Parametric WorkPlane Creation\" press cmdNowhere\n",
         "line 2: Parametric WorkPlane Creation has no button named cmdNowhere"},
        {"menu \"&Create\" \"&Nothing\"\n", "line 1: the menu bar has no item &Create > &Nothing"},
        {"menu \"&Selectors\" \"&Property <enter>\"\n",
         "line 1: the menu item &Selectors > &Property <enter> is disabled"},
        {"menu \"&Create\" \"&Extrusion\"\n",
         "after line 1: the macro ends while a message box asks: Unable to extrude since no "
         "profiles were selected.  Please select profile before extruding."},
        {"resize 800 600\n\nmouse-press 0 1 0 5 5\n", "line 3: viewport 0 is not shown"},
        {"resize 800 \"600\n", "line 1: a quoted text has no closing quote"},
    };
    for (const auto& [text, message] : cases) {
        std::ofstream(dir_ / "bad.macro") << text;
        const Outcome outcome = run("replay " + at("bad.macro") + " -o " + at("out.tvm"));
        EXPECT_EQ(outcome.status, 1) << text;
        const bool syntax = message.find("quote") != std::string::npos;
        const std::string file = "'" + (dir_ / "bad.macro").string() + "'";
        EXPECT_EQ(outcome.err,
                  "korvan-cli: " +
                      (syntax ? "cannot read " + file + " " : "replay of " + file + " stopped: ") +
                      message + "\n")
            << text;
    }
    EXPECT_FALSE(fs::exists(dir_ / "out.tvm"));
}
