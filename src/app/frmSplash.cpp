#include "app/frmSplash.h"

#include "geometry/M3Ops.h"
#include "geometry/Pi.h"
#include "render/LightRanges.h"

#include <algorithm>

namespace {

constexpr int minimumCanvasSide = 120;
constexpr int32_t textColor = 16776960; // cyan
constexpr int16_t ambientLight = 50;    // the main window's level

// A cube of edge 0.4 around (cx, cy, cz). Every face lists its corners counter-clockwise
// as seen from outside, so that back-face culling keeps exactly the faces turned to the eye.
std::shared_ptr<Solid3d> makeCube(float cx, float cy, float cz) {
    constexpr float h = 0.2f;
    auto cube = std::make_shared<Solid3d>();
    const float corners[8][3] = {{-h, -h, -h}, {h, -h, -h}, {h, h, -h}, {-h, h, -h},
                                 {-h, -h, h},  {h, -h, h},  {h, h, h},  {-h, h, h}};
    std::vector<float> points;
    for (const auto& c : corners) {
        points.insert(points.end(), {cx + c[0], cy + c[1], cz + c[2]});
    }
    cube->addPointsArray(points);
    const int32_t faces[6][4] = {{5, 6, 7, 8}, {1, 4, 3, 2}, {2, 3, 7, 6},
                                 {1, 5, 8, 4}, {4, 8, 7, 3}, {1, 2, 6, 5}};
    for (const auto& face : faces) {
        cube->AddFace(face);
    }
    cube->SetDiffuseCoefficients(0.5f, 1.0f, 0.5f);
    cube->SetAmbientCoefficients(0.5f, 1.0f, 0.5f);
    cube->SetSpecularCoefficients(0.5f, 50);
    return cube;
}

} // namespace

void frmSplash::Form_Load(Canvas& picCanvas, const Bitmap& logo, uint32_t now) {
    picCanvas_ = &picCanvas;
    picLogo_ = logo;
    r_ = 10;
    theta_ = 2 * Pi::single / 10;
    phi_ = Pi::single / 10;
    buildViewMatrix();
    lastStep_ = now;

    auto light = std::make_shared<LightSource>();
    light->initialize(-300, 500, 1000, 200, 200, 200);
    lights_ = {light};

    cubes_.clear();
    for (const float x : {-0.5f, 0.5f}) {
        for (const float y : {-0.5f, 0.5f}) {
            for (const float z : {-0.5f, 0.5f}) {
                cubes_.push_back(makeCube(x, y, z));
            }
        }
    }
}

void frmSplash::tick(uint32_t now) {
    if (stopFlag_ || picCanvas_ == nullptr) {
        return;
    }
    // Unsigned difference: still right when the tick count wraps around.
    if (now - lastStep_ > cameraStepInterval) {
        theta_ += Pi::single / 60;
        buildViewMatrix();
        lastStep_ = now;
    }
    drawFrame();
}

frmSplash::Size frmSplash::Form_Resize(int innerWidth, int innerHeight) {
    const Size size{std::max(innerWidth, minimumCanvasSide),
                    std::max(innerHeight, minimumCanvasSide)};
    if (picCanvas_ != nullptr) {
        picCanvas_->move(0, 0, size.width, size.height);
    }
    return size;
}

void frmSplash::buildViewMatrix() {
    M3Ops::buildViewMatrixSpherical(viewMatrix_, 1, r_, phi_, theta_, 0, 0, 0, 0, 1, 0);
}

void frmSplash::drawFrame() {
    Canvas& pic = *picCanvas_;
    const int W = pic.scaleWidth();
    const int H = pic.scaleHeight();

    float ex;
    float ey;
    float ez;
    M3Ops::sphericalToCartesian(r_, theta_, phi_, ex, ey, ez);
    Matrix4 scale;
    M3Ops::setScale(scale, static_cast<float>(W) / 4, -static_cast<float>(H) / 4, 1);
    Matrix4 centre;
    M3Ops::setTranslation(centre, static_cast<float>(W) / 2, static_cast<float>(H) / 2, 0);
    Matrix4 canvasMatrix;
    M3Ops::multiplyMatrices(canvasMatrix, scale, centre);
    Matrix4 full;
    M3Ops::multiplyMatrices(full, viewMatrix_, canvasMatrix);

    depthSorter_.reset(8);
    for (const auto& cube : cubes_) {
        cube->Culled(false);
        cube->cull(ex, ey, ez);
        cube->ApplyFull(full, false);
        cube->clipEye(r_);
        cube->SetZMax();
        depthSorter_.addObject(cube, cube->zmax);
    }
    LightRanges::updateLightRanges(lights_, cubes_);

    pic.setFillStyle(FillSolid);
    pic.clear();
    int32_t count = 0;
    for (const auto& cube : depthSorter_.getSortedObjects()) {
        cube->DrawCounted(pic, lights_, ambientLight, ex, ey, ez, false, false, ++count);
    }
    pic.stretchBlitOr(picLogo_, 0, 0, W, H, 0, 0, picLogo_.width, picLogo_.height);
    pic.setForeColor(textColor);
    pic.textOut(0, 0, "Tavrin Korvan");
    pic.textOut(0, 12, "Version 2.0 Beta Revision B");
    pic.textOut(0, 24, "Made by the Korvan developers");
    pic.refresh();
}
