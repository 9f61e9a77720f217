#include "app/SceneTreeNode.h"

#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"

namespace {

template <class Item> const void* addressIf(const std::any& tag) {
    const auto* item = std::any_cast<std::shared_ptr<Item>>(&tag);
    return item != nullptr ? item->get() : nullptr;
}

} // namespace

const void* SceneTreeNode::itemAddress() const {
    if (const void* solid = addressIf<Transformed3d>(tag)) {
        return solid;
    }
    if (const void* workPlane = addressIf<WorkPlane>(tag)) {
        return workPlane;
    }
    return addressIf<Profile>(tag);
}

void SceneTreeNode::appendChild(const std::shared_ptr<SceneTreeNode>& child) {
    child->parent_ = this;
    child->row_ = static_cast<int>(children_.size());
    children_.push_back(child);
}

void SceneTreeNode::removeChild(int row) {
    const auto at = children_.begin() + row;
    (*at)->parent_ = nullptr;
    (*at)->row_ = 0;
    children_.erase(at);
    for (size_t i = static_cast<size_t>(row); i < children_.size(); ++i) {
        children_[i]->row_ = static_cast<int>(i);
    }
}

void SceneTreeNode::removeAllChildren() {
    for (const auto& child : children_) {
        child->parent_ = nullptr;
        child->row_ = 0;
    }
    children_.clear();
    later_ = {};
}

bool SceneTreeNode::laterChildrenMayHoldKey(const std::string& wanted) const {
    return later_.count > 0 && later_.keyLetter != 0 && !wanted.empty() &&
           wanted.front() == later_.keyLetter && wanted.ends_with(later_.keySuffix);
}

bool SceneTreeNode::laterChildrenMayHoldKeyPrefix(const std::string& prefix) const {
    return later_.count > 0 && later_.keyLetter != 0 &&
           (prefix.empty() || prefix.front() == later_.keyLetter);
}

void SceneTreeNode::makeLaterChildren() {
    if (later_.count == 0) {
        return;
    }
    const LaterChildren later = std::move(later_);
    later_ = {};
    for (const auto& child : later.make()) {
        appendChild(child);
    }
}
