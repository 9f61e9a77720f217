#include "app/ModeCommands.h"

#include "app/MainMenu.h"
#include "app/frmTolvane.h"
#include "interaction/ClickHandleFaceSelector.h"
#include "interaction/ClickHandleProfileSelector.h"
#include "interaction/ClickHandleRotate.h"
#include "interaction/ClickHandleScroll.h"
#include "interaction/ClickHandleSolidSelector.h"
#include "interaction/ClickHandleWorkPlaneSelector.h"
#include "interaction/ClickHandleZoom.h"

#include <memory>
#include <string>

namespace {

// Binds the item of this name on the bar (mnu...) and in the pop-up (mnuPopup...).
template <class Mode> void bindMode(MainMenu& menus, frmTolvane& window, const std::string& name) {
    frmTolvane* w = &window;
    for (const char* prefix : {"mnu", "mnuPopup"}) {
        menus.bind(std::string(prefix) + name, [w] { w->setMouseMode(std::make_unique<Mode>()); });
    }
}

} // namespace

void ModeCommands::bind(MainMenu& menus, frmTolvane& window) {
    bindMode<ClickHandleScroll>(menus, window, "Scroll");
    bindMode<ClickHandleRotate>(menus, window, "Rotate");
    bindMode<ClickHandleZoom>(menus, window, "Zoom");
    bindMode<ClickHandleSolidSelector>(menus, window, "SolidSelector");
    bindMode<ClickHandleFaceSelector>(menus, window, "FaceSelector");
    bindMode<ClickHandleWorkPlaneSelector>(menus, window, "WorkPlaneSelector");
    bindMode<ClickHandleProfileSelector>(menus, window, "ProfileSelector");
    frmTolvane* w = &window;
    for (const char* name : {"mnuDeselectAll", "mnuPopupDeselectAll"}) {
        menus.bind(name, [w] { w->resetAllSelect(); });
    }
}
