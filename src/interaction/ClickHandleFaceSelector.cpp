#include "interaction/ClickHandleFaceSelector.h"

#include "interaction/SelectionReceiver.h"
#include "interaction/TreeDisplay.h"
#include "render/FaceRegionEncap.h"
#include "render/GDIRegion.h"
#include "scene/Transformed3d.h"

#include <string>

void ClickHandleFaceSelector::getData(std::vector<std::any>& datum,
                                      std::vector<std::any>& castGuide) {
    datum = {};
    castGuide = {std::make_shared<Face3d>()};
}

std::optional<viewInfo> ClickHandleFaceSelector::handleLeftClick(MouseEventArgs& args) {
    if (!args.viewSpecs) {
        return std::nullopt;
    }
    const Matrix4 full = fullMatrix(args);
    args.selection.resetAllSelect();
    std::vector<std::shared_ptr<Face3d>> hits;
    int32_t s = 1;
    for (const auto& object : args.solids) {
        projectForClick(*object, args, full);
        for (const auto& pair :
             object->createFaceRegionEncaps(true, true, GDIRegion::WindingFill)) {
            if (pair->getRegion()->inRegion(args.mouseX, args.mouseY)) {
                const auto face = pair->getFace();
                face->setSelected(true);
                hits.push_back(face);
                args.selection.AddSelectNode(
                    args.treeDisplay.findNode("f" + std::to_string(face->getOrderNum()) + "-s" +
                                              std::to_string(s)),
                    16776960);
            }
        }
        object->Culled(false);
        ++s;
    }
    args.treeDisplay.refresh();
    args.selection.setSelectedFaces(hits);
    return args.viewSpecs;
}
