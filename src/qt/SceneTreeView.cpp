#include "qt/SceneTreeView.h"

#include "app/EventGuard.h"
#include "app/frmTolvane.h"
#include "qt/DesktopKey.h"
#include "qt/SceneTreeItemModel.h"
#include "qt/frmRebuildView.h"

#include <QKeyEvent>
#include <unordered_map>

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
    expanded_.clear();
    for (int row = 0; row < model_->rowCount(); ++row) {
        const QModelIndex top = model_->index(row, 0);
        if (isExpanded(top)) {
            std::vector<std::string> texts;
            rememberExpanded(top, SceneTreeItemModel::nodeOf(top).itemAddress(), texts);
        }
    }
    model_->nodesAboutToChange();
}

void SceneTreeView::rememberExpanded(const QModelIndex& index, const void* item,
                                     std::vector<std::string>& texts) {
    expanded_.push_back({item, texts});
    for (int row = 0; row < model_->rowCount(index); ++row) {
        const QModelIndex child = model_->index(row, 0, index);
        if (isExpanded(child)) {
            texts.push_back(SceneTreeItemModel::nodeOf(child).text);
            rememberExpanded(child, item, texts);
            texts.pop_back();
        }
    }
}

void SceneTreeView::nodesChanged() {
    model_->nodesChanged();
    expandRemembered();
}

void SceneTreeView::expandRemembered() {
    if (expanded_.empty()) {
        return;
    }
    std::unordered_map<const void*, int> topRows;
    for (int row = 0; row < model_->rowCount(); ++row) {
        topRows.emplace(SceneTreeItemModel::nodeOf(model_->index(row, 0)).itemAddress(), row);
    }
    for (const ExpandedNode& node : expanded_) {
        const auto top = topRows.find(node.item);
        if (node.item == nullptr || top == topRows.end()) {
            continue; // its item has left the document
        }
        QModelIndex index = model_->index(top->second, 0);
        for (const std::string& text : node.texts) {
            if (model_->canFetchMore(index)) {
                model_->fetchMore(index);
            }
            QModelIndex found;
            for (int row = 0; row < model_->rowCount(index) && !found.isValid(); ++row) {
                const QModelIndex child = model_->index(row, 0, index);
                if (SceneTreeItemModel::nodeOf(child).text == text) {
                    found = child;
                }
            }
            index = found;
            if (!index.isValid()) {
                break;
            }
        }
        if (index.isValid()) {
            expand(index);
        }
    }
    expanded_.clear();
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
