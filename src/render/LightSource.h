#pragma once

#include <cstdint>
#include <memory>
#include <vector>

// A point light. x2 and z2 are a shifted position used instead of x and z when a draw
// asks for it; Kdist and Rmin fit the distance attenuation to the scene before each
// viewport is painted (updateLightRanges).
class LightSource {
public:
    float x = 0;
    float y = 0;
    float z = 0;
    float x2 = 0;
    float z2 = 0;
    float Ir = 0;
    float Ig = 0;
    float Ib = 0;
    float Kdist = 0;
    float Rmin = 0;

    void initialize(float px, float py, float pz, int16_t red, int16_t green, int16_t blue);
    // Note the order: the first argument shifts z, the second x.
    void ShiftLightSource(int32_t dz, int32_t dx);
};

using LightList = std::vector<std::shared_ptr<LightSource>>;
