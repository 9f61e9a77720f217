#pragma once

#include "interaction/ClickHandleNothing.h"
#include "interaction/ClickReceiver.h"
#include "io/TavrinMeshIO.h"
#include "render/SceneDocument.h"
#include "render/ViewSpecs.h"
#include "render/ViewportRenderer.h"
#include "render/viewInfo.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class Canvas;
class Face3d;

// Where the window puts a control: its rectangle in the client area.
struct ControlPlacement {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const ControlPlacement&) const = default;
};

// The main window's logic. It owns the document (objects, lights, workplanes, profiles,
// grid and axes), the four view records, the mouse mode and the selection, lays out the
// four viewport canvases and the scene tree, redraws the viewports and dispatches mouse
// events on them to the mouse mode. The Qt view (qt/frmTolvaneView) shows it and forwards
// the window's events; the canvases are the view's, attached with attachCanvases.
class frmTolvane : public ClickReceiver {
public:
    // The start-up document: everything but the canvases, which the view attaches.
    frmTolvane();

    std::string caption() const { return "Korvan Version 2.0"; }

    // picOrtho(0) to picOrtho(3); viewSpecs(i + 1) belongs to picOrtho(i).
    void attachCanvases(const std::array<Canvas*, 4>& canvases);
    // Load: draws the start-up document once the canvases are attached.
    void Form_Load();
    // Resize of the client area: lays the viewports out for the new size.
    void Form_Resize(int clientWidth, int clientHeight);

    // Places the canvases (one large or four in a 2 x 2 grid, in four fifths of the width)
    // and the tree (the last fifth), then redraws.
    void layoutViewports();
    void redrawAllViewports();

    // A copy of viewSpecs(index) for index 1 to 4, nothing otherwise.
    std::optional<viewInfo> getViewInfo(int32_t index) const;
    void getPicOrthoBounds(int32_t& lower, int32_t& upper) const;
    void setMouseSensivity(float Sensivity) { MouseSensivity = Sensivity; }
    float getMouseSensivity() const { return MouseSensivity; }
    void HandleCollectedDatum() override {}

    // Mouse events of canvas picOrtho(index): button codes 1 left, 2 right, 4 middle and
    // their sums; coordinates in canvas pixels.
    void picOrtho_MouseDown(int index, int button, int shift, float x, float y);
    void picOrtho_MouseMove(int index, int button, int shift, float x, float y);

    void setMouseMode(std::unique_ptr<ClickHandleNothing> mode) { mouseMode = std::move(mode); }
    ClickHandleNothing& getMouseMode() const { return *mouseMode; }
    void setViewportLayout(int32_t layout) { viewportLayout = layout; }
    int32_t getViewportLayout() const { return viewportLayout; }
    int32_t getPopupViewport() const { return popupViewport; }
    const ControlPlacement& getTreePlacement() const { return treePlacement; }
    SceneDocument& getDocument() { return document; }
    const ViewSpecs& getViewSpecs(int index) const {
        return viewSpecs[static_cast<size_t>(index - 1)];
    }

private:
    void redrawViewport(int index);
    MouseEventArgs eventArgs(int index, float x, float y, viewInfo& view);
    ViewSpecs& specsOf(int index) { return viewSpecs[static_cast<size_t>(index)]; }

    int32_t viewportLayout = 1;
    SceneDocument document;
    std::vector<std::shared_ptr<Face3d>> selectedFaces;
    std::vector<std::shared_ptr<Transformed3d>> selectedSolids;
    std::vector<std::shared_ptr<WorkPlane>> selectedWorkplanes;
    std::vector<std::shared_ptr<Profile>> selectedProfiles;
    std::shared_ptr<Profile> currentProfile;
    std::array<ViewSpecs, 4> viewSpecs;
    float MouseSensivity = 0.0025f;
    int32_t popupViewport = 0;
    std::unique_ptr<ClickHandleNothing> mouseMode;
    TavrinMeshIO meshIO;
    ViewportRenderer renderer;
    std::array<Canvas*, 4> picOrtho{};
    int clientWidth = 0;
    int clientHeight = 0;
    ControlPlacement treePlacement;
};
