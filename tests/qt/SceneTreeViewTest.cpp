#include "qt/SceneTreeView.h"

#include "qt/SceneTreeItemModel.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"
#include "support/ShownWindow.h"
#include "support/TestSolids.h"

#include <QBrush>
#include <QIcon>
#include <gtest/gtest.h>

namespace {

// The shown main window with a cube and a workplane in its tree.
struct Shown : ShownWindow {
    Shown() {
        form.getDocument().solids.push_back(makeObject());
        form.getSceneTree().addSolidNode(form.getDocument().solids[0], 1, "Solid");
        form.getDocument().workPlanes.push_back(makeWorkPlane(2, 0, 0));
        form.getSceneTree().addWorkplaneNode(form.getDocument().workPlanes[0], "Workplane");
        QApplication::processEvents();
    }
    QAbstractItemModel& model() { return *window.TreeView1().model(); }
};

} // namespace

TEST(SceneTreeView, ShowsTheNodesMakesFacesOnExpandPaintsTheClickedOneAndDeletesIt) {
    Shown s;
    QAbstractItemModel& model = s.model();
    ASSERT_EQ(model.rowCount(), 2);
    const QModelIndex solid = model.index(0, 0);
    EXPECT_EQ(model.data(solid).toString(), QString("Solid 1"));
    EXPECT_EQ(model.data(model.index(1, 0)).toString(), QString("Workplane 1"));
    EXPECT_FALSE(model.data(solid, Qt::DecorationRole).value<QIcon>().isNull());

    const QModelIndex faces = model.index(1, 0, solid);
    EXPECT_TRUE(model.hasChildren(faces));
    EXPECT_EQ(model.rowCount(faces), 0);
    s.window.TreeView1().expand(solid);
    s.window.TreeView1().expand(faces);
    ASSERT_EQ(model.rowCount(faces), 6);
    const QModelIndex face = model.index(2, 0, faces);
    EXPECT_EQ(model.data(face).toString(), QString("Face 3"));
    EXPECT_EQ(model.parent(face), faces);
    EXPECT_EQ(model.data(model.index(0, 0, face)).toString(), QString(" 2 3 7 6"));

    QTreeView& tree = s.window.TreeView1();
    click(*tree.viewport(), tree.visualRect(s.model().index(0, 0)).center());
    EXPECT_TRUE(s.form.getDocument().solids[0]->isSelected());
    EXPECT_EQ(s.model().data(s.model().index(0, 0), Qt::BackgroundRole).value<QBrush>().color(),
              QColor(255, 0, 0));

    key(tree, Qt::Key_Delete);
    EXPECT_TRUE(s.form.getDocument().solids.empty());
    ASSERT_EQ(s.model().rowCount(), 1);
    EXPECT_EQ(s.model().data(s.model().index(0, 0)).toString(), QString("Workplane 1"));
    EXPECT_TRUE(tree.isVisible());
}

TEST(SceneTreeView, ExpandedNodesStayExpandedWhenTheTreeIsRebuilt) {
    Shown s;
    SceneTreeView& tree = s.window.TreeView1();
    tree.expand(s.model().index(0, 0));
    tree.expand(s.model().index(1, 0, s.model().index(0, 0))); // "Faces"
    key(tree, Qt::Key_A);                                      // any key rebuilds
    const QModelIndex solid = s.model().index(0, 0);
    EXPECT_TRUE(tree.isExpanded(solid));
    EXPECT_TRUE(tree.isExpanded(s.model().index(1, 0, solid)));
    EXPECT_FALSE(tree.isExpanded(s.model().index(0, 0, solid))); // "Points" was not
    EXPECT_FALSE(tree.isExpanded(s.model().index(1, 0)));
}
