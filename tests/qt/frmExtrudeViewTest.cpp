#include "qt/frmExtrudeView.h"

#include "scene/Transformed3d.h"
#include "support/NoPreviewViewports.h"
#include "support/QtInput.h"
#include "support/ScriptedChoosers.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSolids.h"

#include <QLineEdit>
#include <gtest/gtest.h>

TEST(frmExtrudeView, TypedValuesReachTheDialogAndBadOnesEmptyTheirBox) {
    ScriptedPrompts prompts;
    ScriptedModalHost dialogs;
    ScriptedColorChooser colors;
    NoPreviewViewports viewports;
    frmExtrude form(dialogs, colors, viewports);
    form.initialize(makeDiamondProfile());
    frmExtrudeView view(form);
    showNow(view);
    QLineEdit& length = child<QLineEdit>(view, "txtExtrusionLength");
    length.selectAll();
    typeInto(length, "a");
    key(length, Qt::Key_Return); // the default button: Extrude
    EXPECT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(length.text(), "");
    EXPECT_TRUE(view.isVisible());

    typeInto(length, "2");
    QLineEdit& increments = child<QLineEdit>(view, "txtIncrements");
    increments.selectAll();
    typeInto(increments, "4");
    EXPECT_EQ(form.txtIncrements.Text, "4");
    key(increments, Qt::Key_Return);
    EXPECT_FALSE(view.isVisible());
    ASSERT_TRUE(form.getExtrusion());
    EXPECT_EQ(form.getExtrusion()->getTransformationCount(), 4);
}
