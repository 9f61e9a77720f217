#include "interaction/ClickHandleWorkPlaneSelector.h"

#include "interaction/SelectionReceiver.h"
#include "interaction/TreeDisplay.h"
#include "render/GDIRegion.h"
#include "scene/WorkPlane.h"

#include <string>

std::optional<viewInfo> ClickHandleWorkPlaneSelector::handleLeftClick(MouseEventArgs& args) {
    if (!args.viewSpecs) {
        return std::nullopt;
    }
    const Matrix4 full = fullMatrix(args);
    args.selection.resetAllSelect();
    std::vector<std::shared_ptr<WorkPlane>> hits;
    int32_t n = 1;
    for (const auto& workPlane : args.workPlanes) {
        workPlane->ApplyFull(full);
        const auto region = workPlane->createRegion();
        if (region && region->inRegion(args.mouseX, args.mouseY)) {
            workPlane->setSelected(true);
            hits.push_back(workPlane);
            args.selection.AddSelectNode(args.treeDisplay.findNode("w" + std::to_string(n)), 65535);
        }
        // The next redraw projects the plane afresh for each viewport.
        workPlane->resetTransformedPoints();
        ++n;
    }
    args.treeDisplay.refresh();
    args.selection.setSelectedWorkplanes(hits);
    return args.viewSpecs;
}
