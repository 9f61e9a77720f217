#include "modelling/frmSolidProperty.h"

#include "geometry/PackedColor.h"
#include "modelling/SurfaceControls.h"
#include "scene/Transformed3d.h"

frmSolidProperty::frmSolidProperty(ColorChooser& colors) : colors_(colors) {
    addControl("useAmbient", useAmbient, [this] { updateEnabled(); });
    addControl("lblAmbColor", lblAmbColor);
    addControl("picAmbColor", picAmbColor);
    addControl("cmdColorSelect", cmdColorSelect, [this] { cmdColorSelect_Click(); });
    addControl("useDiffuse", useDiffuse, [this] { updateEnabled(); });
    addControl("lblDifColor", lblDifColor);
    addControl("picDifColor", picDifColor);
    addControl("cmdColorSelect2", cmdColorSelect2, [this] { cmdColorSelect2_Click(); });
    addControl("UseSpecularK", UseSpecularK, [this] { updateEnabled(); });
    addControl("lblReflectionLeast", lblReflectionLeast);
    addControl("lblReflection", lblReflection);
    addControl("lblReflectionMost", lblReflectionMost);
    addControl("HScrollSpecK", HScrollSpecK, [this] { HScrollSpecK_Change(); });
    addControl("useSpecularN", useSpecularN, [this] { updateEnabled(); });
    addControl("lblIntensityLeast", lblIntensityLeast);
    addControl("lblIntensity", lblIntensity);
    addControl("lblIntensityMost", lblIntensityMost);
    addControl("HScrollSpecN", HScrollSpecN, [this] { HScrollSpecN_Change(); });
    addControl("OrientSwitch", OrientSwitch);
    addControl("mnuAccept", mnuAccept, [this] { mnuAccept_Click(); });
    addControl("mnuCancel", mnuCancel, [this] { mnuCancel_Click(); });
    picAmbColor.BackColor = PackedColor::pack(128, 128, 128);
    picDifColor.BackColor = PackedColor::pack(128, 128, 128);
    HScrollSpecK = SurfaceControls::specularScale();
    HScrollSpecN = SurfaceControls::specularScale();
    HScrollSpecK_Change();
    HScrollSpecN_Change();
    updateEnabled();
}

void frmSolidProperty::initialize(const std::shared_ptr<Transformed3d>& object) {
    object_ = object;
    if (!object_) {
        close();
    }
}

void frmSolidProperty::updateEnabled() {
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

void frmSolidProperty::cmdColorSelect_Click() {
    SurfaceControls::chooseColor(colors_, picAmbColor);
}

void frmSolidProperty::cmdColorSelect2_Click() {
    SurfaceControls::chooseColor(colors_, picDifColor);
}

void frmSolidProperty::HScrollSpecK_Change() {
    lblReflection.Caption = SurfaceControls::reflectionCaption(HScrollSpecK.Value);
}

void frmSolidProperty::HScrollSpecN_Change() {
    lblIntensity.Caption = SurfaceControls::intensityCaption(std::to_string(HScrollSpecN.Value));
}

void frmSolidProperty::mnuAccept_Click() {
    if (object_) {
        Transformed3d& object = *object_;
        using SurfaceControls::coefficient;
        if (useAmbient.Value) {
            const PackedColor c = PackedColor::split(picAmbColor.BackColor);
            object.SetAmbientCoefficients(coefficient(c.red), coefficient(c.green),
                                          coefficient(c.blue));
        }
        if (useDiffuse.Value) {
            const PackedColor c = PackedColor::split(picDifColor.BackColor);
            object.SetDiffuseCoefficients(coefficient(c.red), coefficient(c.green),
                                          coefficient(c.blue));
        }
        if (UseSpecularK.Value) {
            object.setSpecularK(static_cast<float>(HScrollSpecK.Value) / 100.0f);
        }
        if (useSpecularN.Value) {
            object.setSpecularN(static_cast<float>(HScrollSpecN.Value));
        }
        if (OrientSwitch.Value) {
            for (const auto& face : object.getFaces()) {
                face->switchIndexOrientation();
            }
        }
    }
    close();
}

void frmSolidProperty::mnuCancel_Click() {
    close();
}
