#pragma once

#include "geometry/Matrix4.h"
#include "platform/Canvas.h"
#include "render/LightSource.h"
#include "render/RadixSort.h"
#include "scene/Solid3d.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// The splash screen's logic: eight green cubes lit by one light, seen by a camera that
// orbits them, with the logo ORed over the picture and three lines of text. The Qt view
// (qt/frmSplashView) calls tick from a short repeating timer, Timer1_Timer after
// Timer1Interval, Form_KeyDown at a key press, and hands over to the main window once the
// splash is closed.
//
// The scene goes through the same steps as a viewport of the main window: cull, transform,
// clip against the eye, order the cubes back to front, fit the light's distance attenuation
// to the cubes (every frame: an unfitted light has no range and would paint them black),
// then paint. World units map onto the canvas with a quarter of its width and of its
// height per unit, centred, y up, so the cubes (about one unit from the middle) fill the
// middle half of the canvas whatever its proportions.
class frmSplash {
public:
    static constexpr int Timer1Interval = 6000;        // ms until the splash closes by itself
    static constexpr uint32_t cameraStepInterval = 10; // the camera steps after more than this

    struct Size {
        int width;
        int height;
    };

    std::string caption() const { return "Korvan Version 2"; }

    // Sets up the camera, the light and the cubes; the logo is kept for every frame.
    void Form_Load(Canvas& picCanvas, const Bitmap& logo, uint32_t now);
    // One pass of the animation: steps the camera when it is due, then draws a frame.
    // Does nothing once the splash is closed.
    void tick(uint32_t now);
    void Timer1_Timer() { Unload(); }
    void Form_KeyDown() { Unload(); }
    bool isClosed() const { return stopFlag_; }
    // Places the canvas at the top left of the window's inner area, filling it but never
    // smaller than 120 by 120, and returns the canvas size.
    Size Form_Resize(int innerWidth, int innerHeight);

    float theta() const { return theta_; }
    const std::vector<std::shared_ptr<Solid3d>>& cubes() const { return cubes_; }

private:
    void Unload() { stopFlag_ = true; }
    void buildViewMatrix();
    void drawFrame();

    Canvas* picCanvas_ = nullptr;
    Bitmap picLogo_;
    float r_ = 10;
    float theta_ = 0;
    float phi_ = 0;
    Matrix4 viewMatrix_;
    std::vector<std::shared_ptr<Solid3d>> cubes_;
    LightList lights_;
    bool stopFlag_ = false;
    uint32_t lastStep_ = 0;
    RadixSort<Solid3d> depthSorter_;
};
