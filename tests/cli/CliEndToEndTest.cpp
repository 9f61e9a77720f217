#include "app/frmTolvane.h"
#include "cli/SvgCanvas.h"
#include "geometry/M3Ops.h"
#include "io/TavrinMeshIO.h"
#include "platform/ModalHost.h"
#include "scene/Transformed3d.h"

#include <QImage>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
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

    Outcome run(const std::string& arguments) const {
        const std::string command = std::string("'") + KORVAN_CLI_PATH + "' " + arguments + " >" +
                                    at("stdout") + " 2>" + at("stderr");
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
    EXPECT_TRUE(png.status == 0 && png.out.empty() && png.err.empty()) << png.err;
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
    EXPECT_TRUE(info.status == 0 && info.err.empty()) << info.err;
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
    const std::string render = "render " + scene_ + " -o " + at("out.png");
    for (const std::string& arguments :
         {"render " + at("missing.tvm") + " -o " + at("out.png"), "info " + at("missing.tvm"),
          render + " --shiny", render + " --size 10x", render + " --zoom -2",
          "render " + scene_ + " -o " + at("out.jpg"), "paint " + scene_,
          "info " + at("cut.tvm")}) {
        const Outcome outcome = run(arguments);
        EXPECT_TRUE(outcome.status != 0 && outcome.out.empty()) << arguments;
        EXPECT_TRUE(outcome.err.rfind("korvan-cli: ", 0) == 0 &&
                    std::count(outcome.err.begin(), outcome.err.end(), '\n') == 1)
            << arguments << ": " << outcome.err;
    }
    EXPECT_FALSE(fs::exists(dir_ / "out.png"));

    const Outcome help = run("--help");
    EXPECT_TRUE(help.status == 0 && help.err.empty());
    EXPECT_EQ(help.out.rfind("Usage: korvan-cli render", 0), 0u);
}
