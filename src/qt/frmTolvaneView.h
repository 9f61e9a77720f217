#pragma once

#include "app/frmTolvane.h"
#include "platform/WindowFrame.h"
#include "qt/QtColorChooser.h"
#include "qt/QtFileChooser.h"
#include "qt/QtPictureWriter.h"

#include <QMainWindow>
#include <QTimer>
#include <array>

class CanvasWidget;
class MenuItem;
class QLabel;
class QMenu;
class SettingsStore;
class SceneTreeView;

// Shows the main window's logic (frmTolvane): four viewport canvases and the scene tree in
// the client area, placed by the logic's layout, and the logic's menus as the menu bar and
// the pop-up menu. Mouse events on the canvases, keys and chosen menu items go to it.
class frmTolvaneView : public QMainWindow, public WindowFrame {
    Q_OBJECT
public:
    explicit frmTolvaneView(frmTolvane& form, QWidget* parent = nullptr);

    CanvasWidget& picOrtho(int index) { return *canvases_[static_cast<size_t>(index)]; }
    SceneTreeView& TreeView1() { return *tree_; }

    // The file and colour dialogs the window's commands open.
    FileChooser& fileChooser() { return files_; }
    ColorChooser& colorChooser() { return colors_; }
    // Sizes the window so that its client area is width x height, and tells the logic at once.
    void setClientSize(int width, int height);

    void setMousePointer(MousePointer pointer) override;
    void showPopupMenu(Canvas& canvas, int x, int y) override;
    void unload() override;
    void setTitle(const std::string& title, bool modified) override;
    void showStatus(const std::string& text) override;
    void showModeHint(const std::string& text) override;
    void answerNextFileDialog(const std::string& path) override { files_.answerNext(path); }
    // Restores what the settings keep, and writes it back when the window closes.
    void attachSettings(SettingsStore& store);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    // Closing the window with unsaved work asks first; Cancel keeps the window.
    void closeEvent(QCloseEvent* event) override;
    // A file dropped on the window is opened as File > Open would.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void clientResized(int width, int height);
    // Adds the item's children to menu, each mirroring its item from now on.
    void mirror(MenuItem& item, QMenu& menu);

    frmTolvane& form_;
    QtFileChooser files_;
    QtColorChooser colors_;
    QtPictureWriter pictures_;
    std::array<CanvasWidget*, 4> canvases_{};
    SceneTreeView* tree_ = nullptr;
    QMenu* popup_ = nullptr;
    QLabel* modeHint_ = nullptr;
    bool busy_ = false;
    // Set by unload: the logic has settled unsaved work already.
    bool unloading_ = false;
    QTimer dragPause_;
};
