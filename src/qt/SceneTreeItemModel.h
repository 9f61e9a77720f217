#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <map>
#include <string>

class SceneTreeModel;
class SceneTreeNode;

// The scene tree's nodes as a Qt item model, one column: text, node image and background
// colour; read-only. Each index points at its node, which knows its parent and row. Lists
// left for later are made when the view first expands them (fetchMore).
class SceneTreeItemModel : public QAbstractItemModel {
public:
    explicit SceneTreeItemModel(SceneTreeModel& tree, QObject* parent = nullptr);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

    // The node of an index; the tree's root for the invalid index.
    const SceneTreeNode* nodeAt(const QModelIndex& index) const;
    // The node of a valid index, to act on.
    static SceneTreeNode& nodeOf(const QModelIndex& index) {
        return *static_cast<SceneTreeNode*>(index.internalPointer());
    }

    // What the scene tree tells its view, passed on as the model's own signals.
    void nodesAboutToChange() { beginResetModel(); }
    void nodesChanged() { endResetModel(); }
    void childrenAboutToBeMade(const SceneTreeNode& node, int count);
    void childrenMade() { endInsertRows(); }

private:
    QModelIndex indexOf(const SceneTreeNode& node) const;

    SceneTreeModel& tree_;
    std::map<std::string, QIcon> icons_;
};
