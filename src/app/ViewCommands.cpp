#include "app/ViewCommands.h"

#include "app/EditorPort.h"
#include "app/MainMenu.h"
#include "app/ViewportSet.h"
#include "render/KorvanOpsConsts.h"

#include <functional>
#include <utility>

namespace {

using RecordChange = std::function<void(ViewSpecs&)>;

// Toggles the item's own check mark; returns the new state.
bool toggle(MenuItem& item) {
    item.setChecked(!item.isChecked());
    return item.isChecked();
}

} // namespace

void ViewCommands::bind(MainMenu& menus, EditorPort& editor, ViewportSet& viewports) {
    EditorPort* w = &editor;
    ViewportSet* v = &viewports;
    // A bar item changes every record, then redraws.
    const auto all = [w, v](const RecordChange& change) {
        for (int number = 1; number <= 4; ++number) {
            change(v->viewSpecs(number));
        }
        w->redrawAllViewports();
    };
    // A pop-up item changes the record of the viewport last right-clicked (none before the
    // first right press); the press that opened the menu redraws.
    const auto popup = [w, v](const RecordChange& change) {
        const int number = w->getPopupViewport();
        if (number >= 1 && number <= 4) {
            change(v->viewSpecs(number));
        }
    };

    menus.bind("mnuOneWindow", [w, v] {
        v->viewportLayout = 1;
        w->layoutViewports();
    });
    menus.bind("mnuFourWindows", [w, v] {
        v->viewportLayout = 4;
        w->layoutViewports();
    });

    menus.bind("mnuParallel", [all] { all([](ViewSpecs& r) { r.ProjectionType = 0; }); });
    menus.bind("mnuPerspective", [all] { all([](ViewSpecs& r) { r.ProjectionType = 1; }); });
    menus.bind("mnuPopupParallel", [popup] { popup([](ViewSpecs& r) { r.ProjectionType = 0; }); });
    menus.bind("mnuPopupPerspective",
               [popup] { popup([](ViewSpecs& r) { r.ProjectionType = 1; }); });

    // The bar's and the pop-up's switches keep their own check marks: each writes the state
    // of the item chosen, whatever the records hold.
    MenuItem* backface = &menus.item("mnuBackfaceRemoval");
    menus.bind("mnuBackfaceRemoval", [all, backface] {
        const bool on = toggle(*backface);
        all([on](ViewSpecs& r) { r.HideSurfaces = on; });
    });
    MenuItem* wireframe = &menus.item("mnuWireframe");
    menus.bind("mnuWireframe", [all, wireframe] {
        const bool on = toggle(*wireframe);
        all([on](ViewSpecs& r) { r.wireFrame = on; });
    });
    MenuItem* popupBackface = &menus.item("mnuPopupBackfaceRemoval");
    menus.bind("mnuPopupBackfaceRemoval", [popup, popupBackface] {
        const bool on = toggle(*popupBackface);
        popup([on](ViewSpecs& r) { r.HideSurfaces = on; });
    });
    MenuItem* popupWireframe = &menus.item("mnuPopupWireFrame");
    menus.bind("mnuPopupWireFrame", [popup, popupWireframe] {
        const bool on = toggle(*popupWireframe);
        popup([on](ViewSpecs& r) { r.wireFrame = on; });
    });

    // Their check marks are the switches the redraw reads (depth-buffered pictures at rest
    // are for very large meshes).
    for (const char* name :
         {"mnuGrid", "mnuZeroAxes", "mnuReferenceAxes", "mnuDepthBufferedPictures"}) {
        MenuItem* item = &menus.item(name);
        menus.bind(name, [w, item] {
            toggle(*item);
            w->redrawAllViewports();
        });
    }

    const std::pair<const char*, int> views[] = {
        {"mnuPopupViewTop", KorvanOpsConsts::viewTop},
        {"mnuPopupViewSide", KorvanOpsConsts::viewSide},
        {"mnuPopupViewFront", KorvanOpsConsts::viewFront},
        {"mnuPopupViewIsometric", KorvanOpsConsts::viewIsometric}};
    for (const auto& entry : views) {
        const int view = entry.second;
        menus.bind(entry.first, [popup, view] {
            popup([view](ViewSpecs& r) { KorvanOpsConsts::setOrthoView(view, r); });
        });
    }
}
