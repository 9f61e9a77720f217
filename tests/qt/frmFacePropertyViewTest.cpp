#include "qt/frmFacePropertyView.h"

#include "support/ScriptedChoosers.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSolids.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <gtest/gtest.h>

namespace {

void key(QWidget& widget, Qt::Key code) {
    QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

template <class Widget> Widget& child(QWidget& view, const char* name) {
    auto* widget = view.findChild<Widget*>(name);
    if (widget == nullptr) {
        throw std::logic_error(std::string("no control ") + name);
    }
    return *widget;
}

struct Dialog {
    ScriptedPrompts prompts;
    ScriptedModalHost dialogs;
    ScriptedColorChooser colors;
    std::shared_ptr<Solid3d> cube = makeCube();
    std::shared_ptr<Face3d> face = cube->faces[0];
    frmFaceProperty form{dialogs, colors};

    Dialog() { face->SpecularK = 0.25f; }
};

} // namespace

TEST(frmFacePropertyView, ChangesReachTheFaceThroughTheDefaultButton) {
    Dialog dialog;
    dialog.form.initialize(dialog.face);
    frmFacePropertyView view(dialog.form);
    view.show();
    QApplication::processEvents();
    QPushButton& accept = child<QPushButton>(view, "mnuAccept");
    EXPECT_TRUE(accept.isDefault());
    QScrollBar& bar = child<QScrollBar>(view, "HScrollSpecK");
    EXPECT_EQ(bar.value(), 25);

    bar.setValue(60);
    EXPECT_EQ(dialog.form.lblReflection.Caption, "Reflection: 60%");
    QListWidget& list = child<QListWidget>(view, "listPointIndex");
    list.setCurrentRow(0);
    child<QPushButton>(view, "cmdRemoveIndex").click();
    EXPECT_EQ(list.count(), 3);
    key(list, Qt::Key_Return);
    EXPECT_TRUE(dialog.form.isClosed());
    EXPECT_FALSE(view.isVisible());
    EXPECT_FLOAT_EQ(dialog.face->SpecularK, 0.6f);
    EXPECT_EQ(dialog.face->getIndices(), (std::vector<int32_t>{6, 7, 8}));
}

TEST(frmFacePropertyView, EscapeCancels) {
    Dialog dialog;
    dialog.form.initialize(dialog.face);
    frmFacePropertyView view(dialog.form);
    view.show();
    QApplication::processEvents();
    child<QScrollBar>(view, "HScrollSpecK").setValue(60);
    key(view, Qt::Key_Escape);
    EXPECT_TRUE(dialog.form.isClosed());
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(dialog.face->SpecularK, 0.25f);
}
