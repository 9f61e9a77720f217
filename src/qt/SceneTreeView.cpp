#include "qt/SceneTreeView.h"

#include "app/EventGuard.h"
#include "app/frmTolvane.h"
#include "qt/DesktopKey.h"
#include "qt/SceneTreeItemModel.h"
#include "qt/frmRebuildView.h"

#include <QKeyEvent>

SceneTreeView::SceneTreeView(frmTolvane& form, QWidget* parent)
    : QTreeView(parent), form_(form), model_(new SceneTreeItemModel(form.getSceneTree(), this)) {
    setHeaderHidden(true);
    // Every row is one line beside a 16-pixel image; a list of 100,000 faces then scrolls
    // without measuring each row.
    setUniformRowHeights(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setModel(model_);
    form_.getSceneTree().setListener(this);
    connect(this, &QTreeView::clicked, this, [this](const QModelIndex& index) {
        EventGuard::run([&] { form_.TreeView1_NodeClick(SceneTreeItemModel::nodeOf(index)); });
    });
}

SceneTreeView::~SceneTreeView() {
    form_.getSceneTree().setListener(nullptr);
}

void SceneTreeView::nodesAboutToChange() {
    model_->nodesAboutToChange();
}

void SceneTreeView::nodesChanged() {
    model_->nodesChanged();
}

void SceneTreeView::childrenAboutToBeMade(const SceneTreeNode& node, int count) {
    model_->childrenAboutToBeMade(node, count);
}

void SceneTreeView::childrenMade() {
    model_->childrenMade();
}

void SceneTreeView::refresh() {
    // The model reads the colours from the nodes as it paints.
    viewport()->update();
}

void SceneTreeView::rebuildStarted(const frmRebuild& notice) {
    notice_ = std::make_unique<frmRebuildView>(notice, window());
    hide();
}

void SceneTreeView::rebuildFinished() {
    notice_.reset();
    show();
}

void SceneTreeView::keyPressEvent(QKeyEvent* event) {
    // Every key rebuilds the tree, so the tree's own use of the key (moving the current
    // node, expanding) would act on nodes that are gone; only Delete means anything.
    const std::optional<int> code = desktopKeyCode(*event);
    if (!code) {
        QTreeView::keyPressEvent(event);
        return;
    }
    EventGuard::run([&] { form_.TreeView1_KeyDown(*code); });
}
