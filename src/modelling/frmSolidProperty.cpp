#include "modelling/frmSolidProperty.h"

#include "scene/Transformed3d.h"

frmSolidProperty::frmSolidProperty(ColorChooser& colors) : surface(colors) {
    surface.addControls(
        [this](const std::string& name, auto& state, std::function<void()> handler) {
            addControl(name, state, std::move(handler));
        });
    addControl("OrientSwitch", OrientSwitch);
    addControl("mnuAccept", mnuAccept, [this] { mnuAccept_Click(); });
    addControl("mnuCancel", mnuCancel, [this] { mnuCancel_Click(); });
    surface.reset();
    surface.HScrollSpecK_Change();
    surface.HScrollSpecN_Change();
}

void frmSolidProperty::initialize(const std::shared_ptr<Transformed3d>& object) {
    object_ = object;
    if (!object_) {
        close();
    }
}

void frmSolidProperty::mnuAccept_Click() {
    if (object_) {
        Transformed3d& object = *object_;
        surface.applyTo(object, false);
        if (OrientSwitch.Value) {
            reversedFaces_ = true;
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
