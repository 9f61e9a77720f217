#include "app/frmTolvane.h"
#include "cli/CliApp.h"
#include "cli/SvgCanvas.h"
#include "geometry/M3Ops.h"
#include "io/TavrinMeshIO.h"
#include "platform/ModalHost.h"
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
