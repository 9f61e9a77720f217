#pragma once

#include "app/frmTolvane.h"

#include <QMainWindow>
#include <array>

class CanvasWidget;
class SceneTreeView;

// Shows the main window's logic (frmTolvane): four viewport canvases and the scene tree in
// the client area, placed by the logic's layout; mouse events on the canvases go to it.
class frmTolvaneView : public QMainWindow {
    Q_OBJECT
public:
    explicit frmTolvaneView(frmTolvane& form, QWidget* parent = nullptr);

    CanvasWidget& picOrtho(int index) { return *canvases_[static_cast<size_t>(index)]; }
    SceneTreeView& TreeView1() { return *tree_; }

private:
    void clientResized(int width, int height);

    frmTolvane& form_;
    std::array<CanvasWidget*, 4> canvases_{};
    SceneTreeView* tree_ = nullptr;
};
