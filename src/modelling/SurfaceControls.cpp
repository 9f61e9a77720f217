#include "modelling/SurfaceControls.h"

#include "geometry/PackedColor.h"
#include "geometry/Rounding.h"
#include "platform/ColorChooser.h"

namespace SurfaceControls {

int32_t swatchColor(float kr, float kg, float kb) {
    const auto channel = [](float k) { return Rounding::toInt32(static_cast<double>(k) * 256.0); };
    return PackedColor::pack(channel(kr), channel(kg), channel(kb));
}

float coefficient(int channel) {
    return static_cast<float>(channel) / 256.0f;
}

void chooseColor(ColorChooser& colors, SwatchState& swatch) {
    const int32_t color = colors.chooseColor();
    if (color != -1) {
        swatch.BackColor = color;
    }
}

ScrollBarState specularScale() {
    return ScrollBarState{.Min = 0, .Max = 100, .Value = 0, .SmallChange = 1, .LargeChange = 5};
}

std::string reflectionCaption(int value) {
    return "Reflection: " + std::to_string(value) + "%";
}

std::string intensityCaption(const std::string& value) {
    return "Intensity: " + value;
}

} // namespace SurfaceControls
