#include "qt/frmFacePropertyView.h"

#include "support/QtInput.h"
#include "support/ScriptedChoosers.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSolids.h"

#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <gtest/gtest.h>

TEST(frmFacePropertyView, ChangesReachTheFaceThroughTheDefaultButton) {
    ScriptedPrompts prompts;
    ScriptedModalHost dialogs;
    ScriptedColorChooser colors;
    const auto cube = makeCube();
    const auto face = cube->faces[0];
    face->SpecularK = 0.25f;
    frmFaceProperty form(dialogs, colors);
    form.initialize(face);
    frmFacePropertyView view(form);
    showNow(view);
    QScrollBar& bar = child<QScrollBar>(view, "HScrollSpecK");
    EXPECT_EQ(bar.value(), 25);
    bar.setValue(60);
    EXPECT_EQ(form.lblReflection.Caption, "Reflection: 60%");
    QListWidget& list = child<QListWidget>(view, "listPointIndex");
    list.setCurrentRow(0);
    child<QPushButton>(view, "cmdRemoveIndex").click();
    EXPECT_EQ(list.count(), 3);
    key(list, Qt::Key_Return);
    EXPECT_FALSE(view.isVisible());
    EXPECT_FLOAT_EQ(face->SpecularK, 0.6f);
    EXPECT_EQ(face->getIndices(), (std::vector<int32_t>{6, 7, 8}));
}
