#pragma once

#include "app/SceneTreeListener.h"

#include <QTreeView>
#include <memory>
#include <string>
#include <vector>

class frmRebuildView;
class frmTolvane;
class SceneTreeItemModel;

// TreeView1: shows the main window's scene tree and hands clicks on nodes and key presses to
// the window's logic. While the logic rebuilds the tree it hides itself behind the notice.
// Whenever the tree's nodes are made anew, the nodes the user had expanded are expanded again:
// each is known by the item of its top-level node (not its number, which a deletion changes)
// and the texts on the way down from there.
class SceneTreeView : public QTreeView, public SceneTreeListener {
public:
    explicit SceneTreeView(frmTolvane& form, QWidget* parent = nullptr);
    ~SceneTreeView() override;

    void nodesAboutToChange() override;
    void nodesChanged() override;
    void childrenAboutToBeMade(const SceneTreeNode& node, int count) override;
    void childrenMade() override;
    void refresh() override;
    void rebuildStarted(const frmRebuild& notice) override;
    void rebuildFinished() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct ExpandedNode {
        const void* item;
        std::vector<std::string> texts;
    };
    void rememberExpanded(const QModelIndex& index, const void* item,
                          std::vector<std::string>& texts);
    void expandRemembered();

    frmTolvane& form_;
    std::vector<ExpandedNode> expanded_; // parents before their children
    SceneTreeItemModel* model_;
    std::unique_ptr<frmRebuildView> notice_;
};
