#pragma once

#include "app/MouseSensivityTarget.h"
#include "interaction/ClickHandleNothing.h"
#include "interaction/MouseEventArgs.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

class Canvas;
class ProfileReceiver;
class SceneTreeModel;
class SelectionReceiver;
class ViewportSet;
class WindowFrame;
struct SceneDocument;
struct ViewSpecs;

// Hands the mouse events of the viewport canvases to the current mouse mode, with what a
// mode works on: the canvas's view record, the document's collections, the tree, the
// selection and the profile tool's receiver. It holds the mode, the sensitivity and the
// viewport last right-clicked, and shows the pop-up menu on a right press. Redrawing after an
// event is the window's.
class MouseDispatch : public MouseSensivityTarget {
public:
    MouseDispatch(ViewportSet& viewports, SceneDocument& document, SceneTreeModel& tree,
                  SelectionReceiver& selection, ProfileReceiver& profileTool);

    // The window whose pop-up menu a right press shows and whose status bar says what the
    // mouse does; none before.
    void attachFrame(WindowFrame& frame);

    // A press on canvas picOrtho(index): button codes 1 left, 2 right, 4 middle and their
    // sums; coordinates in canvas pixels. False when there is no such canvas.
    bool mouseDown(int index, int button, float x, float y);
    bool mouseMove(int index, int button, float x, float y);
    // The mode's overlay on a canvas that shows record, as the redraw paints it.
    void drawOverlay(Canvas& canvas, const ViewSpecs& record);

    // The new mode's hint goes to the status bar.
    void setMouseMode(std::unique_ptr<ClickHandleNothing> mode);
    // The mode's hint followed by the pointer's position (none when empty).
    void showPointerPosition(const std::string& position);
    ClickHandleNothing& getMouseMode() const { return *mode_; }
    // The viewport number (1 to 4) of the last right press, 0 before the first.
    int32_t getPopupViewport() const { return popupViewport_; }
    void setMouseSensivity(float Sensivity) override { sensitivity_ = Sensivity; }
    float getMouseSensivity() const { return sensitivity_; }

private:
    MouseEventArgs eventArgs(Canvas& canvas, int32_t x, int32_t y, std::optional<viewInfo>& view);
    // A mouse coordinate in whole canvas pixels, within a million or so of the canvas.
    static int32_t canvasPixel(float coordinate);

    ViewportSet& viewports_;
    SceneDocument& document_;
    SceneTreeModel& tree_;
    SelectionReceiver& selection_;
    ProfileReceiver& profileTool_;
    WindowFrame* frame_ = nullptr;
    std::unique_ptr<ClickHandleNothing> mode_;
    float sensitivity_ = 0.0025f;
    int32_t popupViewport_ = 0;
};
