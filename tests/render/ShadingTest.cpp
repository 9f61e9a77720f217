#include "render/Shading.h"

#include "geometry/PackedColor.h"
#include "render/LightRanges.h"
#include "scene/Transformed3d.h"
#include "support/TestSolids.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

// A surface at the origin facing +z with a red diffuse coefficient of 1.
ShadedSurface redSurface() {
    ShadedSurface s;
    s.nz = 1;
    s.DiffuseKr = 1;
    return s;
}

std::shared_ptr<LightSource> light(float x, float y, float z, float Rmin, float Kdist = 0) {
    auto l = std::make_shared<LightSource>();
    l->initialize(x, y, z, 200, 200, 200);
    l->Rmin = Rmin;
    l->Kdist = Kdist;
    return l;
}

int red(int32_t color) {
    return color % 256;
}
int blue(int32_t color) {
    return color / 65536;
}

} // namespace

TEST(Shading, DiffuseTermIsAttenuatedByDistanceAndClamped) {
    const EyePoint eye{0, 0, 10};
    // Light straight along the normal at the nearest distance: full intensity.
    EXPECT_EQ(Shading::shadeColor(redSurface(), {light(0, 0, 5, 5)}, eye, false), 200);
    // At the farthest distance of the fitted range: half.
    EXPECT_EQ(Shading::shadeColor(redSurface(), {light(0, 0, 15, 5, 15 - 2 * 5)}, eye, false), 100);
    // Two full lights would make 400: clamped.
    EXPECT_EQ(Shading::shadeColor(redSurface(), {light(0, 0, 5, 5), light(0, 0, 5, 5)}, eye, false),
              255);
}

TEST(Shading, FacesTurnedFromEveryLightAreBlackOrBasePlusAmbient) {
    ShadedSurface s = redSurface();
    s.AmbientKr = 1;
    s.AmbientKb = 0.5f;
    const LightList behind = {light(0, 0, -5, 5), light(3, 3, -5, 5)};
    const EyePoint eye{0, 0, 10};
    EXPECT_EQ(Shading::shadeColor(s, behind, eye, false), 0);
    EXPECT_EQ(Shading::shadeForcedColor(s, behind, 50, eye, false, 150, 0, 0),
              PackedColor::pack(200, 0, 25));
}

TEST(Shading, SpecularTermCanDarkenAndShiftedLightsMove) {
    ShadedSurface s = redSurface();
    s.DiffuseKb = 0;
    s.SpecularK = 1;
    s.SpecularN = 0; // power 0: the full specular coefficient for every lit light
    const EyePoint eye{0, 0, 10};
    EXPECT_EQ(blue(Shading::shadeColor(s, {light(0, 0, 5, 5)}, eye, false)), 200);

    // A viewer opposite the reflection with an odd power darkens the face to black.
    s.SpecularN = 1;
    auto grazing = light(4, 0, 3, 5);
    const EyePoint opposite{10, 0, 0.5f};
    EXPECT_EQ(blue(Shading::shadeColor(s, {grazing}, opposite, false)), 0);

    // The shifted position replaces x and z: (x - 5, y, z + 10) is in front of the face.
    auto shifted = light(0, 0, -5, 5);
    shifted->ShiftLightSource(10, -5);
    s.SpecularK = 0;
    EXPECT_EQ(red(Shading::shadeColor(s, {shifted}, eye, false)), 0);
    EXPECT_GT(red(Shading::shadeColor(s, {shifted}, eye, true)), 0);
}

TEST(Shading, SpecularPeaksWhereTheLightMirrorsIntoTheEyeForAnySlantOfFace) {
    // Normal (2, 3, 6) / 7; light and eye lie symmetrically about it, at 7N + T and 7N - T
    // with T = (3, -2, 0) square to N, so the reflected light runs straight into the eye.
    ShadedSurface s;
    s.nx = 2.0f / 7;
    s.ny = 3.0f / 7;
    s.nz = 6.0f / 7;
    s.SpecularK = 1;
    s.SpecularN = 50; // a sharp highlight: any error in the reflection dims it
    const float distance = std::sqrt(62.0f);
    const EyePoint eye{-1, 5, 6};
    EXPECT_EQ(blue(Shading::shadeColor(s, {light(5, 1, 6, distance)}, eye, false)), 200);
}

TEST(Shading, LightRangesFitTheVisibleCorners) {
    auto cube = makeCube();
    cube->faces[0]->IsCulled = true;
    const LightList lights = {light(0, 0, 10, 0)};
    auto object = std::make_shared<Transformed3d>();
    object->setSolid(cube);
    LightRanges::updateLightRanges(lights, std::vector<std::shared_ptr<Transformed3d>>{object});
    // Nearest unculled corner is at z = 1 (on the side faces); farthest at z = -1.
    const float near = std::sqrt(1 + 1 + 81.0f);
    const float far = std::sqrt(1 + 1 + 121.0f);
    EXPECT_NEAR(lights[0]->Rmin, near, 1e-4);
    EXPECT_NEAR(lights[0]->Kdist, far - 2 * near, 1e-4);
}
