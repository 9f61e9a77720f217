// libFuzzer entry for the mesh file reader. Whatever the reader accepts is also drawn, in
// every display mode, since accepted data must never make the renderer read out of bounds
// or stall.
#include "app/SceneDocument.h"
#include "io/TavrinMeshIO.h"
#include "macro/BlankCanvas.h"
#include "platform/Prompts.h"
#include "render/KorvanOpsConsts.h"
#include "render/ViewportRenderer.h"
#include "scene/Transformed3d.h"

#include <cstddef>
#include <cstdint>

namespace {

// Arithmetic reports of drawing odd solids, answered without a word.
class SilentPrompts : public Prompts {
public:
    MessageAnswer messageBox(const std::string&, const std::string&, MessageIcon,
                             MessageButtons buttons) override {
        return buttons == MessageButtons::YesNo ? MessageAnswer::No : MessageAnswer::Ok;
    }
    std::optional<std::string> inputBox(const std::string&, const std::string&,
                                        const std::string&) override {
        return std::nullopt;
    }
};

void drawEveryWay(const ObjectList& objects) {
    SceneDocument document = SceneDocument::startUp();
    document.showGrid = false;
    document.solids = objects;
    for (const bool hide : {true, false}) {
        for (const bool wire : {true, false}) {
            ViewSpecs view;
            KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewIsometric, view);
            view.HideSurfaces = hide;
            view.wireFrame = wire;
            BlankCanvas canvas(320, 240);
            ViewportRenderer().redrawViewport(canvas, view, document.scene());
            for (const auto& object : objects) {
                object->createFaceRegionEncaps(hide, true, 2);
            }
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    static SilentPrompts prompts;
    installPrompts(&prompts);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (const auto objects = TavrinMeshIO::parse({data, size})) {
        drawEveryWay(*objects);
    }
    return 0;
}
