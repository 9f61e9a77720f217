#include "support/DocumentInvariants.h"

#include "app/frmTolvane.h"
#include "scene/Face3d.h"
#include "scene/Transformed3d.h"

#include <algorithm>
#include <map>

namespace {

template <class Item>
bool holds(const std::vector<std::shared_ptr<Item>>& items, const std::shared_ptr<Item>& item) {
    return std::find(items.begin(), items.end(), item) != items.end();
}

template <class Item>
std::string strangers(const std::vector<std::shared_ptr<Item>>& selected,
                      const std::vector<std::shared_ptr<Item>>& items, const std::string& kind) {
    const bool held =
        std::ranges::all_of(selected, [&](const auto& item) { return holds(items, item); });
    return held ? "" : "a selected " + kind + " is not in the document";
}

std::string facesOf(const Transformed3d& object, size_t number) {
    const std::shared_ptr<Solid3d> solid = object.getSolid();
    if (!solid) {
        return "";
    }
    const int32_t last = solid->getPointUpperBound();
    for (const auto& face : solid->copyFaceList()) {
        if (face->getSolidContainer() != solid.get()) {
            return "a face of solid " + std::to_string(number) + " belongs to another";
        }
        for (const int32_t index : face->getIndices()) {
            if (index < 1 || index > last) {
                return "a face of solid " + std::to_string(number) + " names point " +
                       std::to_string(index) + " of " + std::to_string(last);
            }
        }
    }
    return "";
}

} // namespace

std::string brokenInvariant(const frmTolvane& form) {
    const SceneDocument& document = form.getDocument();
    for (size_t i = 0; i < document.solids.size(); ++i) {
        if (std::string broken = facesOf(*document.solids[i], i + 1); !broken.empty()) {
            return broken;
        }
    }

    std::map<char, size_t> counts;
    for (const auto& node : form.getSceneTree().root().children()) {
        const char letter = node->key.empty() ? '\0' : node->key.front();
        const std::string expected = std::string(1, letter) + std::to_string(++counts[letter]);
        if (node->key != expected) {
            return "the tree's node \"" + node->text + "\" has the key \"" + node->key +
                   "\" where \"" + expected + "\" belongs";
        }
    }
    const std::pair<char, size_t> collections[] = {{'s', document.solids.size()},
                                                   {'w', document.workPlanes.size()},
                                                   {'r', document.profiles.size()}};
    // Every solid has its node. Open refills the tree with the solids alone, and the profile
    // being drawn joins it when closed, so workplanes and profiles may lack nodes until the
    // tree is next rebuilt; none has two.
    for (const auto& [letter, size] : collections) {
        if (letter == 's' ? counts[letter] != size : counts[letter] > size) {
            return "the tree has " + std::to_string(counts[letter]) + " nodes \"" +
                   std::string(1, letter) + "\" for " + std::to_string(size) + " items";
        }
    }
    if (counts.size() != 3) {
        return "the tree has a node of an unknown kind";
    }

    const SelectionState& selection = form.getSelection();
    for (const std::string& broken :
         {strangers(selection.selectedSolids, document.solids, "solid"),
          strangers(selection.selectedWorkplanes, document.workPlanes, "workplane"),
          strangers(selection.selectedProfiles, document.profiles, "profile")}) {
        if (!broken.empty()) {
            return broken;
        }
    }
    for (const auto& face : selection.selectedFaces) {
        const bool inDocument =
            std::any_of(document.solids.begin(), document.solids.end(), [&](const auto& solid) {
                return solid->getSolid() && face->getSolidContainer() == solid->getSolid().get();
            });
        if (!inDocument) {
            return "a selected face is not on a solid of the document";
        }
    }
    if (document.currentProfile && !holds(document.profiles, document.currentProfile)) {
        return "the current profile is not in the document";
    }
    return "";
}
