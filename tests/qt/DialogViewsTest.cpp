#include "qt/ExportImageDialogView.h"
#include "qt/frmExtrudeView.h"
#include "qt/frmFacePropertyView.h"
#include "qt/frmOrientationView.h"
#include "qt/frmProfilePropertyView.h"
#include "qt/frmSplashView.h"
#include "qt/frmWorkPlaneParametricView.h"

#include "modelling/EmptyPreviewTarget.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"
#include "support/QtInput.h"
#include "support/ScriptedChoosers.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSolids.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <gtest/gtest.h>

TEST(frmWorkPlaneParametricView, EnterAcceptsWhatWasTypedARefusedFieldIsEmptiedAndFocused) {
    ScriptedPrompts prompts;
    ScriptedColorChooser colors;
    frmWorkPlaneParametric form(colors);
    frmWorkPlaneParametricView view(form);
    showNow(view);
    EXPECT_EQ(view.focusWidget(), &child<QLineEdit>(view, "Text1"));

    // A refused Accept empties the field in the view too and puts the focus there, once:
    // Select later leaves the focus where the user put it.
    QLineEdit& Text2 = child<QLineEdit>(view, "Text2");
    QLineEdit& Text5 = child<QLineEdit>(view, "Text5");
    typeInto(child<QLineEdit>(view, "Text1"), "10");
    typeInto(Text2, "abc");
    key(Text2, Qt::Key_Return);
    EXPECT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(Text2.text(), "");
    EXPECT_EQ(view.focusWidget(), &Text2);
    EXPECT_TRUE(view.isVisible());
    Text5.setFocus();
    child<QPushButton>(view, "Command1").click();
    EXPECT_EQ(view.focusWidget(), &Text5);

    typeInto(Text2, "0.5");
    typeInto(child<QLineEdit>(view, "Text3"), "0");
    typeInto(Text5, "-2");
    key(Text5, Qt::Key_Return); // the default button
    ASSERT_TRUE(form.hasCreated());
    EXPECT_EQ(form.getWorkPlane()->getSize(), 10.0f);
    EXPECT_EQ(form.getWorkPlane()->getOffset(), -2.0f);
    EXPECT_FALSE(view.isVisible());
}

TEST(frmOrientationView, AnUnknownGuessShowsNoChoiceUntilTheUserMakesOne) {
    frmOrientation form;
    COrientation unknown;
    unknown.setOrientation(-1);
    form.initialize(unknown);
    frmOrientationView view(form);
    showNow(view);
    EXPECT_FALSE(child<QRadioButton>(view, "optCW").isChecked());
    EXPECT_FALSE(child<QRadioButton>(view, "optCCW").isChecked());
    child<QRadioButton>(view, "optCCW").click();
    child<QPushButton>(view, "mnuConfirm").click();
    EXPECT_TRUE(form.hasConfirmed());
    EXPECT_EQ(form.getOrientation().getOrientation(), 2);
}

TEST(frmProfilePropertyView, TheMovedPointStaysSelectedInTheListAndEscapeCancels) {
    frmProfileProperty form;
    form.initialize(makeProfile({{1, 0, 0, 1}, {2, 0, 0, 1}, {3, 0, 0, 1}}));
    frmProfilePropertyView view(form);
    showNow(view);
    auto& list = child<QListWidget>(view, "listPointIndex");
    list.setCurrentRow(0);
    child<QPushButton>(view, "cmdUp").click();
    EXPECT_EQ(list.item(0)->text(), "Point1: X:2, Y:0,Z:0");
    EXPECT_EQ(list.item(2)->text(), "Point3: X:1, Y:0,Z:0");
    EXPECT_EQ(list.currentRow(), 2);
    key(list, Qt::Key_Escape); // cancels
    EXPECT_TRUE(form.isClosed());
    EXPECT_FALSE(view.isVisible());
}

TEST(frmExtrudeView, TypedValuesReachTheDialogAndBadOnesEmptyTheirBox) {
    ScriptedPrompts prompts;
    ScriptedModalHost dialogs;
    ScriptedColorChooser colors;
    EmptyPreviewTarget viewports;
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
    key(increments, Qt::Key_Return);
    EXPECT_FALSE(view.isVisible());
    ASSERT_TRUE(form.getExtrusion());
    EXPECT_EQ(form.getExtrusion()->getTransformationCount(), 4);
}

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
    QListWidget& list = child<QListWidget>(view, "listPointIndex");
    list.setCurrentRow(0);
    child<QPushButton>(view, "cmdRemoveIndex").click();
    EXPECT_EQ(list.count(), 3);
    key(list, Qt::Key_Return);
    EXPECT_FALSE(view.isVisible());
    EXPECT_FLOAT_EQ(face->SpecularK, 0.6f);
    EXPECT_EQ(face->getIndices(), (std::vector<int32_t>{6, 7, 8}));
}

TEST(frmSplashView, KeyPressFinishesTheSplash) {
    frmSplash form;
    frmSplashView splash(form);
    bool finished = false;
    QObject::connect(&splash, &frmSplashView::finished, [&finished] { finished = true; });
    showNow(splash); // the window takes its size before the key arrives
    key(splash, Qt::Key_Space, " ");
    EXPECT_TRUE(finished);
    EXPECT_FALSE(splash.isVisible());
}

TEST(ExportImageDialogView, TheSizeBoxesOpenForAnOtherSizeAndARefusedOneIsEmptiedAndFocused) {
    ScriptedPrompts prompts;
    ExportImageDialog form;
    form.initialize({{"Viewport 4", 800, 600}, {"All four", 1600, 1200}});
    ExportImageDialogView view(form);
    showNow(view);
    QLineEdit& width = child<QLineEdit>(view, "txtWidth");
    EXPECT_FALSE(width.isEnabled());
    child<QRadioButton>(view, "optTypedSize").click();
    EXPECT_TRUE(width.isEnabled());
    EXPECT_EQ(view.focusWidget(), &width);

    typeInto(width, "0");
    key(width, Qt::Key_Return);
    EXPECT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(width.text(), "");
    typeInto(width, "32");
    key(width, Qt::Key_Return); // the default button
    ASSERT_TRUE(form.hasAccepted());
    EXPECT_EQ(form.getWidth(), 32);
    EXPECT_EQ(form.getHeight(), 600);
    EXPECT_FALSE(view.isVisible());
}
