#include "app/SceneTreeModel.h"

#include "app/SceneDocument.h"
#include "app/SceneTreeListener.h"
#include "geometry/CPoint3D.h"
#include "geometry/NumberText.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"

class SceneTreeModel::Change {
public:
    explicit Change(SceneTreeModel& tree) : tree_(tree) {
        if (tree_.changeDepth_++ == 0 && tree_.listener_ != nullptr) {
            tree_.listener_->nodesAboutToChange();
        }
    }
    ~Change() {
        if (--tree_.changeDepth_ == 0 && tree_.listener_ != nullptr) {
            tree_.listener_->nodesChanged();
        }
    }
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;

private:
    SceneTreeModel& tree_;
};

namespace {

std::shared_ptr<SceneTreeNode> makeNode(std::string text, std::string image) {
    auto node = std::make_shared<SceneTreeNode>();
    node->text = std::move(text);
    node->image = std::move(image);
    return node;
}

} // namespace

std::shared_ptr<TreeDisplayNode> SceneTreeModel::findNode(const std::string& key) {
    return findSceneNode(key);
}

std::shared_ptr<SceneTreeNode> SceneTreeModel::findSceneNode(const std::string& key) {
    // Child nodes without a key never match a search for one.
    return key.empty() ? nullptr : find(*root_, key);
}

std::shared_ptr<SceneTreeNode> SceneTreeModel::find(SceneTreeNode& node, const std::string& key) {
    for (const auto& child : node.children()) {
        if (child->key == key) {
            return child;
        }
        if (child->laterChildrenMayHoldKey(key)) {
            makeLaterChildren(*child);
        }
        if (auto found = find(*child, key)) {
            return found;
        }
    }
    return nullptr;
}

void SceneTreeModel::refresh() {
    if (listener_ != nullptr) {
        listener_->refresh();
    }
}

int32_t SceneTreeModel::renumberNodes(const std::string& prefix) {
    int32_t k = 1;
    renumber(*root_, prefix, k);
    return k;
}

void SceneTreeModel::renumber(SceneTreeNode& node, const std::string& prefix, int32_t& k) {
    for (const auto& child : node.children()) {
        if (!child->key.empty() && child->key.starts_with(prefix)) {
            child->key = prefix + std::to_string(k);
            ++k;
        }
        if (child->laterChildrenMayHoldKeyPrefix(prefix)) {
            makeLaterChildren(*child);
        }
        renumber(*child, prefix, k);
    }
}

void SceneTreeModel::removeNode(const std::string& key) {
    if (const auto node = findSceneNode(key)) {
        const Change change(*this);
        node->parent()->removeChild(node->row());
        if (!inTree(SelectedItem.get())) {
            SelectedItem.reset();
        }
    }
    if (!key.empty()) {
        const std::string letter = key.substr(0, 1);
        keyCounts_[letter] = renumberNodes(letter) - 1;
    }
}

void SceneTreeModel::removeAllNodes() {
    const Change change(*this);
    root_->removeAllChildren();
    keyCounts_.clear();
    SelectedItem.reset();
}

void SceneTreeModel::rebuildTree(const SceneDocument& document) {
    if (listener_ != nullptr) {
        listener_->rebuildStarted(notice_);
    }
    {
        const Change change(*this);
        showSolids(document.solids);
        for (const auto& workPlane : document.workPlanes) {
            addWorkplaneNode(workPlane, "Workplane");
        }
        for (const auto& profile : document.profiles) {
            addProfileNode(profile, "Profile");
        }
    }
    if (listener_ != nullptr) {
        listener_->rebuildFinished();
    }
}

void SceneTreeModel::showSolids(const std::vector<std::shared_ptr<Transformed3d>>& solids) {
    const Change change(*this);
    removeAllNodes();
    int32_t n = 1;
    for (const auto& object : solids) {
        addSolidNode(object, n, "Solid");
        ++n;
    }
}

std::shared_ptr<SceneTreeNode> SceneTreeModel::addTopNode(const std::string& letter,
                                                          const std::string& caption,
                                                          const std::string& image) {
    const int32_t n = ++keyCounts_[letter];
    auto node = makeNode(caption + " " + std::to_string(n), image);
    node->key = letter + std::to_string(n);
    root_->appendChild(node);
    return node;
}

void SceneTreeModel::addSolidNode(const std::shared_ptr<Transformed3d>& object, int32_t number,
                                  const std::string& caption) {
    const Change change(*this);
    const auto node = addTopNode("s", caption, "solid");
    node->tag = object;
    addSolidPointChildNodes(*node, *object);
    addSolidFaceChildNodes(*node, *object, number);
}

void SceneTreeModel::addSolidPointChildNodes(SceneTreeNode& node, const Transformed3d& object) {
    const Change change(*this);
    const auto points = makeNode("Points", "point");
    node.appendChild(points);
    // The records as they are now, so that the list shows them so however late it is made.
    std::vector<PointRecord> records;
    if (const auto solid = object.getSolid()) {
        records.reserve(static_cast<size_t>(solid->getPointUpperBound()));
        for (int32_t i = 1; i <= solid->getPointUpperBound(); ++i) {
            records.push_back(solid->getPointRecord(i));
        }
    }
    const int count = static_cast<int>(records.size());
    points->leaveChildrenForLater(
        {count,
         [records = std::move(records)] {
             SceneTreeNodes children;
             children.reserve(records.size());
             CPoint3D point;
             for (size_t i = 0; i < records.size(); ++i) {
                 point.setRecord(records[i]);
                 children.push_back(
                     makeNode(std::to_string(i + 1) + ": " + point.toString(), "point"));
             }
             return children;
         },
         0, ""});
}

void SceneTreeModel::addSolidFaceChildNodes(SceneTreeNode& node, const Transformed3d& object,
                                            int32_t number) {
    const Change change(*this);
    const auto faces = makeNode("Faces", "face");
    node.appendChild(faces);
    // Each face's indices as they are now, one after another; starts[c] is where face c + 1's
    // begin.
    std::vector<int32_t> indices;
    std::vector<size_t> starts{0};
    for (const auto& face : object.getFaces()) {
        indices.insert(indices.end(), face->getIndices().begin(), face->getIndices().end());
        starts.push_back(indices.size());
    }
    const std::string suffix = "-s" + std::to_string(number);
    const int count = static_cast<int>(starts.size()) - 1;
    faces->leaveChildrenForLater(
        {count,
         [indices = std::move(indices), starts = std::move(starts), suffix] {
             SceneTreeNodes children;
             children.reserve(starts.size() - 1);
             for (size_t c = 1; c < starts.size(); ++c) {
                 auto face = makeNode("Face " + std::to_string(c), "face");
                 face->key = "f" + std::to_string(c) + suffix;
                 std::string list;
                 for (size_t i = starts[c - 1]; i < starts[c]; ++i) {
                     list += " " + std::to_string(indices[i]);
                 }
                 face->appendChild(makeNode(std::move(list), "point"));
                 children.push_back(std::move(face));
             }
             return children;
         },
         'f', suffix});
}

void SceneTreeModel::addWorkplaneNode(const std::shared_ptr<WorkPlane>& workPlane,
                                      const std::string& caption) {
    const Change change(*this);
    const auto node = addTopNode("w", caption, "workplane");
    node->tag = workPlane;
    node->appendChild(makeNode("Size: " + NumberText::single(workPlane->getSize()), "rotation"));
    node->appendChild(
        makeNode("X Rotation: " + NumberText::single(workPlane->getXRotation()), "rotation"));
    node->appendChild(
        makeNode("Y Rotation: " + NumberText::single(workPlane->getYRotation()), "rotation"));
}

std::string SceneTreeModel::keyOf(const std::shared_ptr<Profile>& profile) const {
    for (const auto& node : root_->children()) {
        const auto* item = std::any_cast<std::shared_ptr<Profile>>(&node->tag);
        if (item != nullptr && *item == profile) {
            return node->key;
        }
    }
    return "";
}

void SceneTreeModel::addProfileNode(const std::shared_ptr<Profile>& profile,
                                    const std::string& caption) {
    const Change change(*this);
    const auto node = addTopNode("r", caption, "profile");
    node->tag = profile;
    int i = 1;
    for (const auto& point : profile->getPoints()) {
        const auto pointNode = makeNode("Point: " + std::to_string(i), "point");
        pointNode->appendChild(makeNode(point->toString(), "point"));
        node->appendChild(pointNode);
        ++i;
    }
}

void SceneTreeModel::makeLaterChildren(SceneTreeNode& node) {
    const int count = node.laterChildCount();
    if (count == 0) {
        return;
    }
    // Inside a change the listener reads the whole tree afterwards anyway.
    const bool tell = changeDepth_ == 0 && listener_ != nullptr;
    if (tell) {
        listener_->childrenAboutToBeMade(node, count);
    }
    node.makeLaterChildren();
    if (tell) {
        listener_->childrenMade();
    }
}

bool SceneTreeModel::inTree(const SceneTreeNode* node) const {
    while (node != nullptr && node->parent() != nullptr) {
        node = node->parent();
    }
    return node == root_.get();
}
