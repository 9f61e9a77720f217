#pragma once

class SceneTreeNode;
class frmRebuild;

// Whoever shows the scene tree hears of its changes here, so that a view can follow the
// plain node tree without polling it.
class SceneTreeListener {
public:
    virtual ~SceneTreeListener() = default;

    // Around any adding or removing of nodes; a view drops what it showed and reads the
    // tree again afterwards.
    virtual void nodesAboutToChange() = 0;
    virtual void nodesChanged() = 0;
    // Around making the count children a node had left for later.
    virtual void childrenAboutToBeMade(const SceneTreeNode& node, int count) = 0;
    virtual void childrenMade() = 0;
    // Node colours changed: paint the tree again.
    virtual void refresh() = 0;
    // A rebuild shows its notice without waiting and hides the tree until it is done.
    virtual void rebuildStarted(const frmRebuild& notice) = 0;
    virtual void rebuildFinished() = 0;
};
