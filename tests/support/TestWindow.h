#pragma once

#include "app/frmTolvane.h"
#include "geometry/M3Ops.h"
#include "render/KorvanOpsConsts.h"
#include "support/RecordingCanvas.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"
#include "support/ScriptedWindowFrame.h"

#include <array>
#include <gtest/gtest.h>

// The top nodes of the scene tree as "key: text".
inline std::vector<std::string> topNodes(const SceneTreeModel& tree) {
    std::vector<std::string> nodes;
    for (const auto& node : tree.root().children()) {
        nodes.push_back(node->key + ": " + node->text);
    }
    return nodes;
}

// A main window with four recording canvases and a scripted frame, file dialog and prompts,
// loaded and laid out in a 1000 x 600 client area.
struct TestWindow {
    ScriptedPrompts prompts;
    ScriptedModalHost dialogs;
    ScriptedFileChooser files;
    ScriptedColorChooser colors;
    ScriptedWindowFrame frame;
    std::array<RecordingCanvas, 4> canvases;
    frmTolvane form{dialogs};

    TestWindow() {
        frame.files = &files;
        form.attachCanvases({&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
        form.attachFrame(frame, files, colors);
        form.Form_Load();
        form.Form_Resize(1000, 600);
    }

    // Four 400 x 300 viewports instead of the one of start-up.
    void showFourViewports() {
        form.getViewports().viewportLayout = 4;
        form.Form_Resize(1000, 600);
    }

    // Where viewport index shows the world point (x, y, z): its canvas pixel and depth.
    Point4 pixel(int index, float x, float y, float z) const {
        Point4 seen;
        M3Ops::transformPoint(
            Point4{x, y, z, 1},
            KorvanOpsConsts::getFullViewMatrix(canvases[static_cast<size_t>(index)],
                                               form.getViewports().viewSpecs(index + 1)),
            seen);
        return seen;
    }

    // Chooses a menu item by the captions of its path from the bar ({"&File", "&New"}).
    void choose(const std::vector<std::string>& captions) {
        MenuItem* item = form.getMenus().getMenuBar().findPath(captions);
        ASSERT_NE(item, nullptr);
        item->click();
    }

    // A right press on canvas index whose pop-up menu chooses the item at the path.
    void popup(int index, const std::vector<std::string>& captions) {
        frame.queuePopupChoice([this, captions] {
            MenuItem* item = form.getMenus().getPopupMenu().findPath(captions);
            ASSERT_NE(item, nullptr);
            item->click();
        });
        form.picOrtho_MouseDown(index, 2, 0, 10, 10);
    }
};
