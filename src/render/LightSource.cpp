#include "render/LightSource.h"

void LightSource::initialize(float px, float py, float pz, int16_t red, int16_t green,
                             int16_t blue) {
    x = px;
    y = py;
    z = pz;
    Ir = red;
    Ig = green;
    Ib = blue;
}

void LightSource::ShiftLightSource(int32_t dz, int32_t dx) {
    x2 = x + static_cast<float>(dx);
    z2 = z + static_cast<float>(dz);
}
