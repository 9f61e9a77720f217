#pragma once

#include "platform/Controls.h"

#include <functional>
#include <string>

class ColorChooser;
class Transformed3d;

// The surface properties of a whole object in the dialogs that set them (Extrude, Solid
// Properties): ambient and diffuse colour, each a swatch with its Select button, and the
// specular coefficient and exponent, each a scroll bar with its captions. Each group has a
// "Use" box; its controls are enabled exactly while it is ticked. Nothing is read from an
// object, so the swatches start mid grey (128, 128, 128), which writes 0.5 per channel when
// a group is ticked without choosing a colour, and the bars at 0.
class SurfaceGroup {
public:
    CheckBoxState useAmbient{.Caption = "Use Ambient"};
    LabelState lblAmbColor{"Ambient Color:"};
    SwatchState picAmbColor;
    ButtonState cmdColorSelect{"Select"};
    CheckBoxState useDiffuse{.Caption = "Use Diffuse"};
    LabelState lblDifColor{"Diffuse Color:"};
    SwatchState picDifColor;
    ButtonState cmdColorSelect2{"Select"};
    CheckBoxState UseSpecularK{.Caption = "Use Specular Coefficient"};
    LabelState lblReflectionLeast{"Least:"};
    LabelState lblReflection{"Reflection:"};
    LabelState lblReflectionMost{"Most"};
    ScrollBarState HScrollSpecK;
    CheckBoxState useSpecularN{.Caption = "Use Specular Intensity"};
    LabelState lblIntensityLeast{"Least:"};
    LabelState lblIntensity{"Intensity:"};
    LabelState lblIntensityMost{"Most"};
    ScrollBarState HScrollSpecN;

    // colors serves the Select buttons.
    explicit SurfaceGroup(ColorChooser& colors);

    // Hands every control to add(name, state, handler), for the dialog to register.
    template <class Add> void addControls(Add add) {
        const std::function<void()> none;
        const std::function<void()> update = [this] { updateEnabled(); };
        add("useAmbient", useAmbient, update);
        add("lblAmbColor", lblAmbColor, none);
        add("picAmbColor", picAmbColor, none);
        add("cmdColorSelect", cmdColorSelect, [this] { cmdColorSelect_Click(); });
        add("useDiffuse", useDiffuse, update);
        add("lblDifColor", lblDifColor, none);
        add("picDifColor", picDifColor, none);
        add("cmdColorSelect2", cmdColorSelect2, [this] { cmdColorSelect2_Click(); });
        add("UseSpecularK", UseSpecularK, update);
        add("lblReflectionLeast", lblReflectionLeast, none);
        add("lblReflection", lblReflection, none);
        add("lblReflectionMost", lblReflectionMost, none);
        add("HScrollSpecK", HScrollSpecK, [this] { HScrollSpecK_Change(); });
        add("useSpecularN", useSpecularN, update);
        add("lblIntensityLeast", lblIntensityLeast, none);
        add("lblIntensity", lblIntensity, none);
        add("lblIntensityMost", lblIntensityMost, none);
        add("HScrollSpecN", HScrollSpecN, [this] { HScrollSpecN_Change(); });
    }

    // Grey swatches, the bars at 0 of 0 to 100, and the controls enabled as their boxes say.
    void reset();
    void updateEnabled();
    void cmdColorSelect_Click();
    void cmdColorSelect2_Click();
    void HScrollSpecK_Change();
    void HScrollSpecN_Change();

    // Writes the ticked groups to the object. A group not ticked is left as the object has
    // it, or, with middleForUnticked, set to the middle of its range (0.5, 0.5 and 50).
    void applyTo(Transformed3d& object, bool middleForUnticked) const;

private:
    ColorChooser& colors_;
};
