#pragma once

#include "platform/Controls.h"

#include <cstdint>
#include <string>

class ColorChooser;

// How the dialogs that edit surface coefficients show them: colour coefficients as a
// swatch, the specular coefficient and exponent on two scroll bars with their captions.
namespace SurfaceControls {

// Each channel is the coefficient x 256, rounded; a coefficient of 1 or more shows 255.
int32_t swatchColor(float kr, float kg, float kb);
// A swatch channel (0..255) as a coefficient: 255 comes back as 255/256, not 1.
float coefficient(int channel);
// The swatch takes the colour the user chooses; cancelling keeps its own.
void chooseColor(ColorChooser& colors, SwatchState& swatch);
// The specular scroll bars: 0 to 100, one step per arrow, five per page.
ScrollBarState specularScale();
std::string reflectionCaption(int value);
std::string intensityCaption(const std::string& value);

} // namespace SurfaceControls
