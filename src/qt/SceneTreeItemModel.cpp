#include "qt/SceneTreeItemModel.h"

#include "app/SceneTreeModel.h"

#include <QBrush>
#include <QColor>

SceneTreeItemModel::SceneTreeItemModel(SceneTreeModel& tree, QObject* parent)
    : QAbstractItemModel(parent), tree_(tree) {
    for (const char* image : {"solid", "rotation", "workplane", "face", "point", "profile"}) {
        icons_[image] = QIcon(QString(":/korvan/tree-%1.png").arg(image));
    }
}

const SceneTreeNode* SceneTreeItemModel::nodeAt(const QModelIndex& index) const {
    return index.isValid() ? static_cast<const SceneTreeNode*>(index.internalPointer())
                           : &tree_.root();
}

QModelIndex SceneTreeItemModel::index(int row, int column, const QModelIndex& parent) const {
    const SceneTreeNode* node = nodeAt(parent);
    if (column != 0 || row < 0 || row >= static_cast<int>(node->children().size())) {
        return {};
    }
    return createIndex(row, 0, node->children()[static_cast<size_t>(row)].get());
}

QModelIndex SceneTreeItemModel::parent(const QModelIndex& child) const {
    const SceneTreeNode* up = child.isValid() ? nodeAt(child)->parent() : nullptr;
    return up == nullptr || up == &tree_.root() ? QModelIndex{} : indexOf(*up);
}

QModelIndex SceneTreeItemModel::indexOf(const SceneTreeNode& node) const {
    return &node == &tree_.root() ? QModelIndex{} : createIndex(node.row(), 0, &node);
}

int SceneTreeItemModel::rowCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : static_cast<int>(nodeAt(parent)->children().size());
}

int SceneTreeItemModel::columnCount(const QModelIndex&) const {
    return 1;
}

bool SceneTreeItemModel::hasChildren(const QModelIndex& parent) const {
    const SceneTreeNode* node = nodeAt(parent);
    return !node->children().empty() || node->laterChildCount() > 0;
}

QVariant SceneTreeItemModel::data(const QModelIndex& index, int role) const {
    const SceneTreeNode* node = index.isValid() ? nodeAt(index) : nullptr;
    if (node == nullptr) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromStdString(node->text);
    case Qt::DecorationRole: {
        const auto icon = icons_.find(node->image);
        return icon == icons_.end() ? QVariant{} : QVariant(icon->second);
    }
    case Qt::BackgroundRole: {
        // Packed as red + 256 x green + 65536 x blue.
        const int32_t c = node->BackColor;
        return QBrush(QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF));
    }
    default:
        return {};
    }
}

Qt::ItemFlags SceneTreeItemModel::flags(const QModelIndex& index) const {
    // Labels are read-only.
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

bool SceneTreeItemModel::canFetchMore(const QModelIndex& parent) const {
    return parent.isValid() && nodeAt(parent)->laterChildCount() > 0;
}

void SceneTreeItemModel::fetchMore(const QModelIndex& parent) {
    if (canFetchMore(parent)) {
        tree_.makeLaterChildren(nodeOf(parent));
    }
}

void SceneTreeItemModel::childrenAboutToBeMade(const SceneTreeNode& node, int count) {
    beginInsertRows(indexOf(node), 0, count - 1);
}
