#pragma once

// What the mesh harnesses do with what a reader accepts: draw it in every display mode, since
// accepted data must never make the renderer read out of bounds or stall.
#include "app/SceneDocument.h"
#include "io/MeshFormatError.h"
#include "io/TavrinMeshIO.h"
#include "platform/Prompts.h"
#include "render/BlankCanvas.h"
#include "render/KorvanOpsConsts.h"
#include "render/ViewportRenderer.h"
#include "scene/Transformed3d.h"

#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

namespace FuzzDrawing {

// Arithmetic reports of drawing odd solids, answered without a word.
class SilentPrompts : public Prompts {
public:
    MessageAnswer messageBox(const std::string&, const std::string&, MessageIcon,
                             MessageButtons buttons) override {
        return refusal(buttons);
    }
    std::optional<std::string> inputBox(const std::string&, const std::string&,
                                        const std::string&) override {
        return std::nullopt;
    }
};

inline void silencePrompts() {
    static SilentPrompts prompts;
    installPrompts(&prompts);
}

inline void drawEveryWay(const ObjectList& objects) {
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

// The harness of a reader of bytes whose writer it can check: a refusal is an ordinary end;
// what reads is drawn every way, and what the writer makes of it must read back to the same
// bytes.
template <class Parse, class Encode>
int readDrawAndWriteBack(std::span<const uint8_t> input, Parse parse, Encode encode) {
    ObjectList objects;
    try {
        objects = parse(input);
    } catch (const MeshFormatError&) {
        return 0;
    }
    drawEveryWay(objects);
    const std::vector<uint8_t> written = encode(objects);
    if (encode(parse(written)) != written) {
        std::abort();
    }
    return 0;
}

} // namespace FuzzDrawing
