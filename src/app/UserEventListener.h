#pragma once

class MenuItem;
class SceneTreeNode;

// Hears each event the desktop hands the main window's logic, before it runs: the client
// area's size, chosen menu items, keys, the mouse on a viewport and the scene tree. A macro
// recorder is one. What happens inside the dialogs a command opens, and the answers to its
// questions, reach the listener through the dialogs and the platform services instead.
class UserEventListener {
public:
    virtual ~UserEventListener() = default;
    virtual void clientResized(int width, int height) = 0;
    virtual void menuChosen(const MenuItem& item) = 0;
    virtual void keyPressed(int keyCode) = 0;
    virtual void mousePressed(int viewport, int button, int shift, float x, float y) = 0;
    virtual void mouseMoved(int viewport, int button, int shift, float x, float y) = 0;
    virtual void treeNodeClicked(const SceneTreeNode& node) = 0;
    virtual void treeKeyPressed(int keyCode) = 0;
};
