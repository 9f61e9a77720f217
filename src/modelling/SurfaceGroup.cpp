#include "modelling/SurfaceGroup.h"

#include "geometry/PackedColor.h"
#include "modelling/SurfaceControls.h"
#include "scene/Transformed3d.h"

SurfaceGroup::SurfaceGroup(ColorChooser& colors) : colors_(colors) {}

void SurfaceGroup::reset() {
    HScrollSpecK = SurfaceControls::specularScale();
    HScrollSpecN = SurfaceControls::specularScale();
    // Mid grey, so that choosing "Use" without a colour keeps the middle coefficients.
    picAmbColor.BackColor = PackedColor::pack(128, 128, 128);
    picDifColor.BackColor = PackedColor::pack(128, 128, 128);
    updateEnabled();
}

void SurfaceGroup::updateEnabled() {
    lblAmbColor.Enabled = useAmbient.Value;
    picAmbColor.Enabled = useAmbient.Value;
    cmdColorSelect.Enabled = useAmbient.Value;
    lblDifColor.Enabled = useDiffuse.Value;
    picDifColor.Enabled = useDiffuse.Value;
    cmdColorSelect2.Enabled = useDiffuse.Value;
    for (LabelState* label : {&lblReflectionLeast, &lblReflection, &lblReflectionMost}) {
        label->Enabled = UseSpecularK.Value;
    }
    HScrollSpecK.Enabled = UseSpecularK.Value;
    for (LabelState* label : {&lblIntensityLeast, &lblIntensity, &lblIntensityMost}) {
        label->Enabled = useSpecularN.Value;
    }
    HScrollSpecN.Enabled = useSpecularN.Value;
}

void SurfaceGroup::cmdColorSelect_Click() {
    SurfaceControls::chooseColor(colors_, picAmbColor);
}

void SurfaceGroup::cmdColorSelect2_Click() {
    SurfaceControls::chooseColor(colors_, picDifColor);
}

void SurfaceGroup::HScrollSpecK_Change() {
    lblReflection.Caption = SurfaceControls::reflectionCaption(HScrollSpecK.Value);
}

void SurfaceGroup::HScrollSpecN_Change() {
    lblIntensity.Caption = SurfaceControls::intensityCaption(std::to_string(HScrollSpecN.Value));
}

void SurfaceGroup::applyTo(Transformed3d& object, bool middleForUnticked) const {
    using SurfaceControls::coefficient;
    if (useAmbient.Value) {
        const PackedColor c = PackedColor::split(picAmbColor.BackColor);
        object.SetAmbientCoefficients(coefficient(c.red), coefficient(c.green),
                                      coefficient(c.blue));
    } else if (middleForUnticked) {
        object.SetAmbientCoefficients(0.5f, 0.5f, 0.5f);
    }
    if (useDiffuse.Value) {
        const PackedColor c = PackedColor::split(picDifColor.BackColor);
        object.SetDiffuseCoefficients(coefficient(c.red), coefficient(c.green),
                                      coefficient(c.blue));
    } else if (middleForUnticked) {
        object.SetDiffuseCoefficients(0.5f, 0.5f, 0.5f);
    }
    if (UseSpecularK.Value) {
        object.setSpecularK(static_cast<float>(HScrollSpecK.Value) / 100.0f);
    } else if (middleForUnticked) {
        object.setSpecularK(0.5f);
    }
    if (useSpecularN.Value) {
        object.setSpecularN(static_cast<float>(HScrollSpecN.Value));
    } else if (middleForUnticked) {
        object.setSpecularN(50.0f);
    }
}
