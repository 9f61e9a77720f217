#pragma once

#include "app/SceneTreeListener.h"

#include <QTreeView>
#include <memory>

class frmRebuildView;
class frmTolvane;
class SceneTreeItemModel;

// TreeView1: shows the main window's scene tree and hands clicks on nodes and key presses to
// the window's logic. While the logic rebuilds the tree it hides itself behind the notice.
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
    frmTolvane& form_;
    SceneTreeItemModel* model_;
    std::unique_ptr<frmRebuildView> notice_;
};
