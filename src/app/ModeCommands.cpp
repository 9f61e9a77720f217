#include "app/ModeCommands.h"

#include "app/EditorPort.h"
#include "app/MainMenu.h"
#include "app/SelectionState.h"
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
template <class Mode> void bindMode(MainMenu& menus, EditorPort& editor, const std::string& name) {
    EditorPort* w = &editor;
    for (const char* prefix : {"mnu", "mnuPopup"}) {
        menus.bind(std::string(prefix) + name, [w] { w->setMouseMode(std::make_unique<Mode>()); });
    }
}

} // namespace

void ModeCommands::bind(MainMenu& menus, EditorPort& editor, SelectionState& selection) {
    bindMode<ClickHandleScroll>(menus, editor, "Scroll");
    bindMode<ClickHandleRotate>(menus, editor, "Rotate");
    bindMode<ClickHandleZoom>(menus, editor, "Zoom");
    bindMode<ClickHandleSolidSelector>(menus, editor, "SolidSelector");
    bindMode<ClickHandleFaceSelector>(menus, editor, "FaceSelector");
    bindMode<ClickHandleWorkPlaneSelector>(menus, editor, "WorkPlaneSelector");
    bindMode<ClickHandleProfileSelector>(menus, editor, "ProfileSelector");
    SelectionState* s = &selection;
    for (const char* name : {"mnuDeselectAll", "mnuPopupDeselectAll"}) {
        menus.bind(name, [s] { s->resetAllSelect(); });
    }
}
