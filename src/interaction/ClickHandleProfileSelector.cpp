#include "interaction/ClickHandleProfileSelector.h"

#include "interaction/ClickHandleSelector.h"
#include "interaction/SelectionReceiver.h"
#include "interaction/TreeDisplay.h"
#include "render/GDIRegion.h"
#include "scene/Profile.h"

#include <string>

std::optional<viewInfo> ClickHandleProfileSelector::handleLeftClick(MouseEventArgs& args) {
    if (!args.viewSpecs) {
        return std::nullopt;
    }
    const Matrix4 full = ClickHandleSelector::fullMatrix(args);
    std::vector<std::shared_ptr<Profile>> hits;
    args.selection.resetAllSelect();
    int32_t r = 1;
    for (const auto& profile : args.profiles) {
        if (profile->createRegion(full)->inRegion(args.mouseX, args.mouseY)) {
            hits.push_back(profile);
            args.selection.AddSelectNode(args.treeDisplay.findNode("r" + std::to_string(r)),
                                         16711935);
            profile->setSelected(true);
        }
        ++r;
    }
    args.selection.setSelectedProfiles(hits);
    return std::nullopt;
}
