#include "modelling/frmFaceProperty.h"

#include "geometry/NumberText.h"
#include "geometry/PackedColor.h"
#include "geometry/Rounding.h"
#include "modelling/SurfaceControls.h"
#include "modelling/frmPointIndexSelect.h"
#include "platform/ModalHost.h"
#include "platform/Prompts.h"
#include "scene/Face3d.h"
#include "scene/Solid3d.h"

frmFaceProperty::frmFaceProperty(ModalHost& dialogs, ColorChooser& colors)
    : dialogs_(dialogs), colors_(colors) {
    addControl("lblAmbColor", lblAmbColor);
    addControl("picAmbColor", picAmbColor);
    addControl("cmdColorSelect", cmdColorSelect, [this] { cmdColorSelect_Click(); });
    addControl("lblDifColor", lblDifColor);
    addControl("picDifColor", picDifColor);
    addControl("Command1", Command1, [this] { Command1_Click(); });
    addControl("fraSpecular", fraSpecular);
    addControl("lblCoefficient", lblCoefficient);
    addControl("lblLeast", lblLeast);
    addControl("HScrollSpecK", HScrollSpecK, [this] { HScrollSpecK_Change(); });
    addControl("lblMost", lblMost);
    addControl("lblReflection", lblReflection);
    addControl("lblNormal", lblNormal);
    addControl("HScrollSpecN", HScrollSpecN, [this] { HScrollSpecN_Change(); });
    addControl("lblIntensity", lblIntensity);
    addControl("lblPointIndices", lblPointIndices);
    addControl("listPointIndex", listPointIndex);
    addControl("cmdAddIndex", cmdAddIndex, [this] { cmdAddIndex_Click(); });
    addControl("cmdModifyIndex", cmdModifyIndex, [this] { cmdModifyIndex_Click(); });
    addControl("cmdRemoveIndex", cmdRemoveIndex, [this] { cmdRemoveIndex_Click(); });
    addControl("OrientSwitch", OrientSwitch);
    addControl("mnuAccept", mnuAccept, [this] { mnuAccept_Click(); });
    addControl("mnuCancel", mnuCancel, [this] { mnuCancel_Click(); });
    HScrollSpecK = SurfaceControls::specularScale();
    HScrollSpecN = SurfaceControls::specularScale();
    lblReflection.Caption = SurfaceControls::reflectionCaption(0);
    lblIntensity.Caption = SurfaceControls::intensityCaption("0");
}

void frmFaceProperty::initialize(const std::shared_ptr<Face3d>& face) {
    face_ = face;
    if (!face_) {
        close();
        return;
    }
    const Face3d& f = *face_;
    picAmbColor.BackColor = SurfaceControls::swatchColor(f.AmbientKr, f.AmbientKg, f.AmbientKb);
    picDifColor.BackColor = SurfaceControls::swatchColor(f.DiffuseKr, f.DiffuseKg, f.DiffuseKb);
    HScrollSpecK.Value = HScrollSpecK.clamped(Rounding::toInt32(f.SpecularK * 100.0));
    lblReflection.Caption = SurfaceControls::reflectionCaption(HScrollSpecK.Value);
    HScrollSpecN.Value = HScrollSpecN.clamped(Rounding::toInt32(f.SpecularN));
    lblIntensity.Caption = SurfaceControls::intensityCaption(NumberText::single(f.SpecularN));
    exponentMoved_ = false;
    // A face whose solid is gone has no points to pick from.
    points_.clear();
    if (const Solid3d* solid = f.getSolidContainer()) {
        points_ = solid->getPoints();
    }
    indices_ = f.getIndices();
    fillList(-1);
}

void frmFaceProperty::fillList(int selected) {
    listPointIndex.items.clear();
    for (const int32_t index : indices_) {
        listPointIndex.items.push_back("Point: " + std::to_string(index));
    }
    listPointIndex.ListIndex = selected;
}

void frmFaceProperty::cmdColorSelect_Click() {
    SurfaceControls::chooseColor(colors_, picAmbColor);
}

void frmFaceProperty::Command1_Click() {
    SurfaceControls::chooseColor(colors_, picDifColor);
}

void frmFaceProperty::HScrollSpecK_Change() {
    lblReflection.Caption = SurfaceControls::reflectionCaption(HScrollSpecK.Value);
}

void frmFaceProperty::HScrollSpecN_Change() {
    exponentMoved_ = true;
    lblIntensity.Caption = SurfaceControls::intensityCaption(std::to_string(HScrollSpecN.Value));
}

std::optional<int32_t> frmFaceProperty::pickPoint(int32_t goToPointIndex) {
    frmPointIndexSelect picker;
    picker.initialize(points_, goToPointIndex);
    dialogs_.showModal(picker);
    if (picker.hasCanceled()) {
        return std::nullopt;
    }
    return picker.getSelectedIndex();
}

void frmFaceProperty::cmdAddIndex_Click() {
    const int line = listPointIndex.ListIndex;
    if (line < 0) {
        return;
    }
    const std::optional<int32_t> index = pickPoint(1);
    if (!index) {
        return;
    }
    auto at = indices_.begin() + line;
    if (line == static_cast<int>(indices_.size()) - 1 &&
        activePrompts().messageBox(
            "Do you want to add new point index before last(yes) entry or after(no)?",
            "Point Index Entry", MessageIcon::None, MessageButtons::YesNo) == MessageAnswer::No) {
        at = indices_.end();
    }
    indices_.insert(at, *index);
    fillList(-1);
}

void frmFaceProperty::cmdModifyIndex_Click() {
    const int line = listPointIndex.ListIndex;
    if (line < 0) {
        return;
    }
    const std::optional<int32_t> index = pickPoint(indices_[static_cast<size_t>(line)]);
    if (!index) {
        return;
    }
    indices_[static_cast<size_t>(line)] = *index;
    fillList(line);
}

void frmFaceProperty::cmdRemoveIndex_Click() {
    const int line = listPointIndex.ListIndex;
    if (line < 0) {
        return;
    }
    if (indices_.size() <= 3) {
        showMessage("Cannot delete point index reference.  A face cannot have less than 3 points "
                    "after deletion.",
                    "Cannot delete", MessageIcon::Information);
        return;
    }
    indices_.erase(indices_.begin() + line);
    fillList(-1);
}

void frmFaceProperty::mnuAccept_Click() {
    if (face_) {
        Face3d& f = *face_;
        f.SetPoints(indices_);
        const PackedColor ambient = PackedColor::split(picAmbColor.BackColor);
        f.AmbientKr = SurfaceControls::coefficient(ambient.red);
        f.AmbientKg = SurfaceControls::coefficient(ambient.green);
        f.AmbientKb = SurfaceControls::coefficient(ambient.blue);
        const PackedColor diffuse = PackedColor::split(picDifColor.BackColor);
        f.DiffuseKr = SurfaceControls::coefficient(diffuse.red);
        f.DiffuseKg = SurfaceControls::coefficient(diffuse.green);
        f.DiffuseKb = SurfaceControls::coefficient(diffuse.blue);
        f.SpecularK = static_cast<float>(HScrollSpecK.Value) / 100.0f;
        if (exponentMoved_) {
            f.SpecularN = static_cast<float>(HScrollSpecN.Value);
        }
        if (OrientSwitch.Value) {
            f.switchIndexOrientation();
        }
    }
    close();
}

void frmFaceProperty::mnuCancel_Click() {
    close();
}
