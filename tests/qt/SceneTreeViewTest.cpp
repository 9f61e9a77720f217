#include "qt/SceneTreeView.h"

#include "app/frmTolvane.h"
#include "qt/SceneTreeItemModel.h"
#include "qt/frmTolvaneView.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSolids.h"

#include <QApplication>
#include <QBrush>
#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>
#include <gtest/gtest.h>

namespace {

// The main window's view, shown, with a cube and a workplane in its tree.
struct Shown {
    ScriptedPrompts prompts;
    ScriptedModalHost dialogs;
    frmTolvane form{dialogs};
    frmTolvaneView window{form};

    Shown() {
        auto object = std::make_shared<Transformed3d>();
        object->setSolid(makeCube(1));
        form.getDocument().solids.push_back(object);
        form.getSceneTree().addSolidNode(object, 1, "Solid");
        auto workPlane = std::make_shared<WorkPlane>();
        workPlane->initialize(2, 0, 0, 0, 0);
        form.getDocument().workPlanes.push_back(workPlane);
        form.addWorkplaneNode(workPlane, "Workplane");
        window.resize(1000, 700);
        window.show();
        QApplication::processEvents();
    }

    QAbstractItemModel& model() { return *window.TreeView1().model(); }

    void clickRow(const QModelIndex& index) {
        QWidget* area = window.TreeView1().viewport();
        const QPoint at = window.TreeView1().visualRect(index).center();
        for (auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, area->mapToGlobal(at), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QApplication::sendEvent(area, &event);
        }
    }
};

} // namespace

TEST(SceneTreeView, ShowsTheNodesWithTheirImagesAndMakesFacesOnExpand) {
    Shown s;
    QAbstractItemModel& model = s.model();
    ASSERT_EQ(model.rowCount(), 2);
    const QModelIndex solid = model.index(0, 0);
    EXPECT_EQ(model.data(solid).toString(), QString("Solid 1"));
    EXPECT_EQ(model.data(model.index(1, 0)).toString(), QString("Workplane 1"));
    EXPECT_FALSE(model.data(solid, Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_FALSE(model.flags(solid).testFlag(Qt::ItemIsEditable));

    const QModelIndex faces = model.index(1, 0, solid);
    EXPECT_EQ(model.data(faces).toString(), QString("Faces"));
    EXPECT_TRUE(model.hasChildren(faces));
    EXPECT_EQ(model.rowCount(faces), 0);
    s.window.TreeView1().expand(solid);
    s.window.TreeView1().expand(faces);
    ASSERT_EQ(model.rowCount(faces), 6);
    const QModelIndex face = model.index(2, 0, faces);
    EXPECT_EQ(model.data(face).toString(), QString("Face 3"));
    EXPECT_EQ(model.parent(face), faces);
    EXPECT_EQ(model.data(model.index(0, 0, face)).toString(), QString(" 2 3 7 6"));
}

TEST(SceneTreeView, ExpandedNodesStayExpandedWhenTheTreeIsRebuilt) {
    Shown s;
    SceneTreeView& tree = s.window.TreeView1();
    tree.expand(s.model().index(0, 0));
    tree.expand(s.model().index(1, 0, s.model().index(0, 0))); // "Faces"
    QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QApplication::sendEvent(&tree, &press);
    const QModelIndex solid = s.model().index(0, 0);
    EXPECT_TRUE(tree.isExpanded(solid));
    EXPECT_TRUE(tree.isExpanded(s.model().index(1, 0, solid)));
    EXPECT_FALSE(tree.isExpanded(s.model().index(0, 0, solid))); // "Points" was not
    EXPECT_FALSE(tree.isExpanded(s.model().index(1, 0)));
}

TEST(SceneTreeView, AClickedNodeIsPaintedAndDeleteRemovesItsItem) {
    Shown s;
    s.clickRow(s.model().index(0, 0));
    EXPECT_TRUE(s.form.getDocument().solids[0]->isSelected());
    EXPECT_EQ(s.model().data(s.model().index(0, 0), Qt::BackgroundRole).value<QBrush>().color(),
              QColor(255, 0, 0));

    QKeyEvent press(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
    QApplication::sendEvent(&s.window.TreeView1(), &press);
    EXPECT_TRUE(s.form.getDocument().solids.empty());
    ASSERT_EQ(s.model().rowCount(), 1);
    EXPECT_EQ(s.model().data(s.model().index(0, 0)).toString(), QString("Workplane 1"));
    EXPECT_TRUE(s.window.TreeView1().isVisible());
}
