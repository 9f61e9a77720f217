#include "app/frmTolvane.h"
#include "cli/SvgCanvas.h"
#include "geometry/M3Ops.h"
#include "io/TavrinMeshIO.h"
#include "scene/Transformed3d.h"

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
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

// A square prism on the grid at (x, z), its curve listed so that the faces point outwards.
std::shared_ptr<Transformed3d> prism(float x, float z, float half, float height) {
    auto object = std::make_shared<Transformed3d>();
    const float corners[5][2] = {
        {-half, half}, {half, half}, {half, -half}, {-half, -half}, {-half, half}};
    for (const auto& c : corners) {
        object->AddCurvePoint(x + c[0], 0, z + c[1]);
    }
    Matrix4 up;
    M3Ops::setTranslation(up, 0, height, 0);
    object->SetTransformation(up);
    object->Transform(true);
    object->SetDiffuseCoefficients(0.9f, 0.6f, 0.3f);
    object->SetAmbientCoefficients(0.5f, 0.5f, 0.5f);
    return object;
}

class CliEndToEnd : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = fs::temp_directory_path() / ("korvan-cli-test-" + std::to_string(getpid()));
        fs::create_directories(dir_);
        scene_ = (dir_ / "two prisms.tvm").string();
        objects_ = {prism(0.5f, 0, 0.3f, 0.8f), prism(-0.6f, -0.4f, 0.25f, 0.5f)};
        ASSERT_TRUE(TavrinMeshIO().saveFile(objects_, scene_));
    }
    void TearDown() override { fs::remove_all(dir_); }

    Outcome run(const std::string& arguments) const {
        const fs::path out = dir_ / "stdout";
        const fs::path err = dir_ / "stderr";
        const std::string command = std::string("'") + KORVAN_CLI_PATH + "' " + arguments + " >'" +
                                    out.string() + "' 2>'" + err.string() + "'";
        const int raw = std::system(command.c_str());
        return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, readAll(out), readAll(err)};
    }

    static std::string quoted(const std::string& path) { return "'" + path + "'"; }

    fs::path dir_;
    std::string scene_;
    std::vector<std::shared_ptr<Transformed3d>> objects_;
};

void expectOneErrorLine(const Outcome& outcome) {
    EXPECT_NE(outcome.status, 0);
    EXPECT_TRUE(outcome.out.empty());
    EXPECT_EQ(outcome.err.rfind("korvan-cli: ", 0), 0u) << outcome.err;
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
}

} // namespace

TEST_F(CliEndToEnd, RendersPngAndSvgAndDescribesTheFile) {
    const std::string png = (dir_ / "iso.png").string();
    const Outcome rendered =
        run("render " + quoted(scene_) + " -o " + quoted(png) + " --size 320x240");
    EXPECT_EQ(rendered.status, 0);
    EXPECT_TRUE(rendered.err.empty()) << rendered.err;
    QImage image;
    ASSERT_TRUE(image.load(QString::fromStdString(png)));
    EXPECT_EQ(image.size(), QSize(320, 240));
    const QRgb corner = image.pixel(0, 0);
    bool uniform = true;
    for (int y = 0; y < image.height() && uniform; ++y) {
        for (int x = 0; x < image.width() && uniform; ++x) {
            uniform = image.pixel(x, y) == corner;
        }
    }
    EXPECT_FALSE(uniform);

    const std::string svg = (dir_ / "top.svg").string();
    const Outcome drawn =
        run("render --view top --parallel --no-grid " + quoted(scene_) + " -o " + quoted(svg));
    EXPECT_EQ(drawn.status, 0) << drawn.err;
    const std::string text = readAll(svg);
    EXPECT_EQ(text.rfind("<svg", 0), 0u);
    EXPECT_NE(text.find("width=\"800\" height=\"600\""), std::string::npos);
    EXPECT_NE(text.find("<polygon"), std::string::npos);

    const Outcome described = run("info " + quoted(scene_));
    EXPECT_EQ(described.status, 0) << described.err;
    std::ostringstream expected;
    expected << "{\"file\": \"" << scene_ << "\", \"objects\": 2, \"items\": [";
    for (size_t i = 0; i < objects_.size(); ++i) {
        const auto solid = objects_[i]->getSolid();
        expected << (i > 0 ? ", " : "") << "{\"points\": " << solid->getNextPointIndex() - 1
                 << ", \"faces\": " << solid->GetFaceNum() << "}";
    }
    expected << "]}\n";
    EXPECT_EQ(described.out, expected.str());
    EXPECT_TRUE(described.err.empty());
}

TEST_F(CliEndToEnd, DefaultRenderIsWhatTheEditorShowsAtStartUp) {
    const std::string svg = (dir_ / "default.svg").string();
    const Outcome rendered = run("render " + quoted(scene_) + " -o " + quoted(svg));
    ASSERT_EQ(rendered.status, 0) << rendered.err;

    frmTolvane editor;
    SvgCanvas top(400, 300);
    SvgCanvas side(400, 300);
    SvgCanvas front(400, 300);
    SvgCanvas single(800, 600);
    editor.attachCanvases({&top, &side, &front, &single});
    std::string name = scene_;
    editor.getDocument().solids = TavrinMeshIO().OpenFile(name).value();
    editor.redrawAllViewports();
    EXPECT_EQ(readAll(svg), single.svg());
}

TEST_F(CliEndToEnd, FailuresAreOneLineWithNonZeroStatus) {
    const std::string png = quoted((dir_ / "out.png").string());
    expectOneErrorLine(run("render " + quoted((dir_ / "missing.tvm").string()) + " -o " + png));
    expectOneErrorLine(run("info " + quoted((dir_ / "missing.tvm").string())));
    expectOneErrorLine(run("render " + quoted(scene_) + " -o " + png + " --shiny"));
    expectOneErrorLine(run("render " + quoted(scene_) + " -o " + png + " --size 10x"));
    expectOneErrorLine(run("render " + quoted(scene_) + " -o " + png + " --zoom -2"));
    expectOneErrorLine(run("render " + quoted(scene_) + " -o " + quoted("out.jpg")));
    expectOneErrorLine(run("paint " + quoted(scene_)));
    EXPECT_FALSE(fs::exists(dir_ / "out.png"));

    // A file that ends before its counts say is corrupt.
    const std::string bytes = readAll(scene_);
    const std::string cut = (dir_ / "cut.tvm").string();
    std::ofstream(cut, std::ios::binary) << bytes.substr(0, bytes.size() / 2);
    expectOneErrorLine(run("info " + quoted(cut)));

    const Outcome help = run("--help");
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.out.find("Usage: korvan-cli render"), std::string::npos);
    EXPECT_TRUE(help.err.empty());
}
