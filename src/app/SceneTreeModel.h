#pragma once

#include "app/SceneTreeNode.h"
#include "app/frmRebuild.h"
#include "interaction/TreeDisplay.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

class Profile;
class SceneTreeListener;
class Transformed3d;
class WorkPlane;
struct SceneDocument;

// The scene tree as a plain tree of nodes, in the order the tree shows them; the Qt tree
// view mirrors it through a SceneTreeListener. Top-level keys are a letter and the item's
// number among the nodes of its kind: "s" solids, "w" workplanes, "r" profiles. Each node
// joins the tree in a time of its own, whatever the tree holds, so that a document of
// millions of objects opens in time proportional to its size.
class SceneTreeModel : public TreeDisplay {
public:
    // The one that shows the tree, or nullptr.
    void setListener(SceneTreeListener* listener) { listener_ = listener; }

    // The invisible root; its children are the top-level nodes.
    const SceneTreeNode& root() const { return *root_; }
    // The node the user last clicked; none after a rebuild or once it left the tree.
    std::shared_ptr<SceneTreeNode> SelectedItem;

    // Searches the whole tree in the order it is shown, making children left for later
    // where they may hold the key.
    std::shared_ptr<TreeDisplayNode> findNode(const std::string& key) override;
    std::shared_ptr<SceneTreeNode> findSceneNode(const std::string& key);
    void refresh() override;

    // Gives the nodes whose keys begin with prefix the keys prefix & 1, prefix & 2, ... in
    // tree order; returns the next number.
    int32_t renumberNodes(const std::string& prefix);
    // Removes the node with that key and its children, then renumbers the key's kind. Texts
    // keep their old numbers.
    void removeNode(const std::string& key);
    void removeAllNodes();
    // Every node made anew from the document, behind the rebuild notice.
    void rebuildTree(const SceneDocument& document);
    // Every node replaced by the nodes of these solids, in one change; the document's
    // workplanes and profiles are left without nodes.
    void showSolids(const std::vector<std::shared_ptr<Transformed3d>>& solids);

    // A solid's node, numbered after the solids already in the tree, with its "Points" and
    // "Faces" lists; number is the solid's position in the document, which its face keys
    // carry.
    void addSolidNode(const std::shared_ptr<Transformed3d>& object, int32_t number,
                      const std::string& caption);
    void addSolidPointChildNodes(SceneTreeNode& node, const Transformed3d& object);
    void addSolidFaceChildNodes(SceneTreeNode& node, const Transformed3d& object, int32_t number);
    void addWorkplaneNode(const std::shared_ptr<WorkPlane>& workPlane, const std::string& caption);
    void addProfileNode(const std::shared_ptr<Profile>& profile, const std::string& caption);
    // The key of the top-level node that stands for the profile, or "" when it has none.
    std::string keyOf(const std::shared_ptr<Profile>& profile) const;

    // Makes the children the node left for later, telling the listener.
    void makeLaterChildren(SceneTreeNode& node);

private:
    // Tells the listener around a change; changes inside changes are told once.
    class Change;

    std::shared_ptr<SceneTreeNode> addTopNode(const std::string& letter, const std::string& caption,
                                              const std::string& image);
    std::shared_ptr<SceneTreeNode> find(SceneTreeNode& node, const std::string& key);
    void renumber(SceneTreeNode& node, const std::string& prefix, int32_t& k);
    bool inTree(const SceneTreeNode* node) const;

    std::shared_ptr<SceneTreeNode> root_ = std::make_shared<SceneTreeNode>();
    SceneTreeListener* listener_ = nullptr;
    int changeDepth_ = 0;
    // How many top-level nodes carry a key of each letter; their keys are the letter and
    // 1, 2, ... in tree order, so a new one at the end takes the next number.
    std::map<std::string, int32_t> keyCounts_;
    frmRebuild notice_;
};
