#include "interaction/ClickHandleSolidSelector.h"

#include "interaction/SelectionReceiver.h"
#include "interaction/TreeDisplay.h"
#include "render/GDIRegion.h"
#include "scene/Transformed3d.h"

#include <algorithm>
#include <string>

std::optional<viewInfo> ClickHandleSolidSelector::handleLeftClick(MouseEventArgs& args) {
    if (!args.viewSpecs) {
        return std::nullopt;
    }
    const Matrix4 full = fullMatrix(args);
    args.selection.resetAllSelect();
    std::vector<std::shared_ptr<Transformed3d>> hits;
    int32_t s = 1;
    for (const auto& object : args.solids) {
        projectForClick(*object, args, full);
        const auto regions = object->createRegions(true, true, GDIRegion::WindingFill);
        const bool hit = std::any_of(regions.begin(), regions.end(), [&](const auto& region) {
            return region->inRegion(args.mouseX, args.mouseY);
        });
        if (hit) {
            object->setSelected(true);
            hits.push_back(object);
            args.selection.AddSelectNode(args.treeDisplay.findNode("s" + std::to_string(s)), 255);
        }
        object->Culled(false);
        ++s;
    }
    args.treeDisplay.refresh();
    args.selection.setSelectedSolids(hits);
    return args.viewSpecs;
}
