#include "app/SelectionState.h"

#include "app/SceneDocument.h"
#include "app/SceneTreeNode.h"
#include "interaction/TreeDisplay.h"
#include "platform/Prompts.h"
#include "scene/Face3d.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"

#include <algorithm>
#include <functional>
#include <string>

namespace {

// Clears the items' selected flags and the collection.
template <class Item> void deselect(std::vector<std::shared_ptr<Item>>& items) {
    for (const auto& item : items) {
        item->setSelected(false);
    }
    items = {};
}

// Takes several items from one click only when the user keeps them.
template <class Item>
void keepIfWanted(std::vector<std::shared_ptr<Item>>& selection,
                  const std::vector<std::shared_ptr<Item>>& hits, const std::string& question) {
    if (hits.size() >= 2 &&
        activePrompts().messageBox(question, "Multiple face selection", MessageIcon::None,
                                   MessageButtons::YesNo) != MessageAnswer::Yes) {
        for (const auto& item : hits) {
            item->setSelected(false);
        }
        return;
    }
    selection = hits;
}

} // namespace

void SelectionState::setSelectedFaces(const std::vector<std::shared_ptr<Face3d>>& faces) {
    keepIfWanted(selectedFaces, faces,
                 "The face selector has selected more than one face.  Do you want to keep them "
                 "both?  No will undo new selection.");
    updatePropertyMenu();
}

void SelectionState::setSelectedSolids(const std::vector<std::shared_ptr<Transformed3d>>& solids) {
    keepIfWanted(selectedSolids, solids,
                 "The solid selector has selected more than one solid.  Do you want to keep "
                 "them both?  No will undo new selection.");
    updatePropertyMenu();
}

void SelectionState::setSelectedWorkplanes(
    const std::vector<std::shared_ptr<WorkPlane>>& workPlanes) {
    selectedWorkplanes = workPlanes;
    updatePropertyMenu();
}

void SelectionState::setSelectedProfiles(const std::vector<std::shared_ptr<Profile>>& profiles) {
    selectedProfiles = profiles;
}

void SelectionState::resetSelectSolids() {
    deselect(selectedSolids);
    updatePropertyMenu();
}

void SelectionState::resetSelectFaces() {
    deselect(selectedFaces);
    updatePropertyMenu();
}

void SelectionState::resetSelectWorkplanes() {
    deselect(selectedWorkplanes);
    updatePropertyMenu();
}

void SelectionState::resetSelectProfiles() {
    deselect(selectedProfiles);
}

void SelectionState::resetSelectNodes() {
    // A node removed from the tree since is painted all the same; nobody sees it.
    for (const auto& node : selectNodes) {
        node->setBackColor(SceneTreeNode::white);
    }
    selectNodes = {};
    updatePropertyMenu();
}

void SelectionState::resetAllSelect() {
    resetSelectSolids();
    resetSelectFaces();
    resetSelectWorkplanes();
    resetSelectNodes();
    resetSelectProfiles();
    tree_.refresh();
}

void SelectionState::AddSelectNode(const std::shared_ptr<TreeDisplayNode>& node, int32_t color) {
    paintNode(node, color);
    tree_.refresh();
}

void SelectionState::paintNode(const std::shared_ptr<TreeDisplayNode>& node, int32_t color) {
    if (!node) {
        return; // the tree lacks the hit's node; the hit stays selected all the same
    }
    node->setBackColor(color);
    selectNodes.push_back(node);
}

void SelectionState::updatePropertyMenu() {
    propertyMenuEnabled_ = !selectedSolids.empty() || !selectedFaces.empty() ||
                           !selectedWorkplanes.empty() || !selectedProfiles.empty();
}

namespace {

// Removes the items keep does not keep, clearing their selected flags (an undo may bring
// them back, and they must not come back highlighted); true when it removed any.
template <class Item, class Keep>
bool keepOnly(std::vector<std::shared_ptr<Item>>& items, Keep keep) {
    const auto gone = std::partition(items.begin(), items.end(), keep);
    const bool removed = gone != items.end();
    for (auto item = gone; item != items.end(); ++item) {
        (*item)->setSelected(false);
    }
    items.erase(gone, items.end());
    return removed;
}

template <class Item>
bool keepHeld(std::vector<std::shared_ptr<Item>>& items,
              const std::vector<std::shared_ptr<Item>>& held) {
    return keepOnly(items, [&](const std::shared_ptr<Item>& item) {
        return std::find(held.begin(), held.end(), item) != held.end();
    });
}

} // namespace

void SelectionState::forgetAllBut(const SceneDocument& document) {
    bool forgot = keepHeld(selectedSolids, document.solids);
    forgot |= keepHeld(selectedWorkplanes, document.workPlanes);
    forgot |= keepHeld(selectedProfiles, document.profiles);
    forgot |= keepOnly(selectedFaces, [&](const std::shared_ptr<Face3d>& face) {
        return std::any_of(document.solids.begin(), document.solids.end(), [&](const auto& solid) {
            return solid->getSolid() && face->getSolidContainer() == solid->getSolid().get();
        });
    });
    if (forgot) {
        updatePropertyMenu();
    }
}

namespace {

// Paints the nodes keyed letter + place of the selected items among all.
template <class Item>
void paintSelected(const std::vector<std::shared_ptr<Item>>& selected,
                   const std::vector<std::shared_ptr<Item>>& all, const char* letter,
                   const std::function<void(const std::string&)>& paint) {
    for (const auto& item : selected) {
        const auto found = std::find(all.begin(), all.end(), item);
        if (found != all.end()) {
            paint(letter + std::to_string(found - all.begin() + 1));
        }
    }
}

} // namespace

void SelectionState::repaintNodes(const SceneDocument& document) {
    selectNodes = {};
    const auto painter = [this](int32_t color) {
        return [this, color](const std::string& key) { paintNode(tree_.findNode(key), color); };
    };
    paintSelected(selectedSolids, document.solids, "s", painter(255));
    paintSelected(selectedWorkplanes, document.workPlanes, "w", painter(65535));
    paintSelected(selectedProfiles, document.profiles, "r", painter(16711935));
    for (const auto& face : selectedFaces) {
        for (size_t s = 0; s < document.solids.size(); ++s) {
            if (face->getSolidContainer() == document.solids[s]->getSolid().get()) {
                paintNode(tree_.findNode("f" + std::to_string(face->getOrderNum()) + "-s" +
                                         std::to_string(s + 1)),
                          16776960);
            }
        }
    }
    tree_.refresh();
}
