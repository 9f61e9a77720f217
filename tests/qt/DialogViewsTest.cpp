#include "qt/frmOrientationView.h"
#include "qt/frmProfilePropertyView.h"
#include "qt/frmWorkPlaneParametricView.h"

#include "geometry/CPoint3D.h"
#include "scene/WorkPlane.h"
#include "support/ScriptedChoosers.h"
#include "support/ScriptedPrompts.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <gtest/gtest.h>

namespace {

void key(QWidget& widget, Qt::Key code, const QString& text = {}) {
    QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &event);
}

void typeInto(QWidget& field, const QString& text) {
    for (const QChar c : text) {
        key(field, Qt::Key_unknown, QString(c));
    }
}

template <class Widget> Widget& child(QWidget& view, const char* name) {
    auto* widget = view.findChild<Widget*>(name);
    if (widget == nullptr) {
        throw std::logic_error(std::string("no control ") + name);
    }
    return *widget;
}

} // namespace

TEST(frmWorkPlaneParametricView, EnterAcceptsWhatWasTypedEscapeCancels) {
    ScriptedPrompts prompts;
    ScriptedColorChooser colors;
    frmWorkPlaneParametric form(colors);
    frmWorkPlaneParametricView view(form);
    view.show();
    QApplication::processEvents();
    EXPECT_TRUE(child<QPushButton>(view, "mnuAccept").isDefault());
    EXPECT_EQ(view.focusWidget(), &child<QLineEdit>(view, "Text1"));

    // A refused Accept empties the field in the view too and puts the focus there, once:
    // Select later leaves the focus where the user put it.
    QLineEdit& Text2 = child<QLineEdit>(view, "Text2");
    typeInto(child<QLineEdit>(view, "Text1"), "10");
    typeInto(Text2, "abc");
    key(Text2, Qt::Key_Return);
    EXPECT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(Text2.text(), "");
    EXPECT_EQ(view.focusWidget(), &Text2);
    EXPECT_TRUE(view.isVisible());
    child<QLineEdit>(view, "Text5").setFocus();
    child<QPushButton>(view, "Command1").click();
    EXPECT_EQ(view.focusWidget(), &child<QLineEdit>(view, "Text5"));

    typeInto(Text2, "0.5");
    typeInto(child<QLineEdit>(view, "Text3"), "0");
    typeInto(child<QLineEdit>(view, "Text5"), "-2");
    key(child<QLineEdit>(view, "Text5"), Qt::Key_Return);
    EXPECT_EQ(prompts.messages().size(), 1u);
    EXPECT_TRUE(form.hasCreated());
    ASSERT_NE(form.getWorkPlane(), nullptr);
    EXPECT_EQ(form.getWorkPlane()->getSize(), 10.0f);
    EXPECT_EQ(form.getWorkPlane()->getOffset(), -2.0f);
    EXPECT_FALSE(view.isVisible());

    frmWorkPlaneParametric cancelled(colors);
    frmWorkPlaneParametricView cancelView(cancelled);
    cancelView.show();
    QApplication::processEvents();
    typeInto(child<QLineEdit>(cancelView, "Text1"), "10");
    key(child<QLineEdit>(cancelView, "Text1"), Qt::Key_Escape);
    EXPECT_TRUE(cancelled.isClosed());
    EXPECT_FALSE(cancelled.hasCreated());
    EXPECT_FALSE(cancelView.isVisible());
}

TEST(frmOrientationView, AnUnknownGuessShowsNoChoiceUntilTheUserMakesOne) {
    ScriptedPrompts prompts;
    frmOrientation form;
    COrientation unknown;
    unknown.setOrientation(-1);
    form.initialize(unknown);
    frmOrientationView view(form);
    view.show();
    QApplication::processEvents();
    EXPECT_FALSE(child<QRadioButton>(view, "optCW").isChecked());
    EXPECT_FALSE(child<QRadioButton>(view, "optCCW").isChecked());

    child<QRadioButton>(view, "optCCW").click();
    child<QPushButton>(view, "mnuConfirm").click();
    EXPECT_TRUE(form.hasConfirmed());
    EXPECT_EQ(form.getOrientation().getOrientation(), 2);
}

TEST(frmProfilePropertyView, TheMovedPointStaysSelectedInTheList) {
    ScriptedPrompts prompts;
    auto profile = std::make_shared<Profile>();
    for (float x : {1.0f, 2.0f, 3.0f}) {
        auto point = std::make_shared<CPoint3D>();
        point->setRecord({Point4{x, 0, 0, 1}, {}, {}});
        profile->addCPoint(point);
    }
    frmProfileProperty form;
    form.initialize(profile);
    frmProfilePropertyView view(form);
    view.show();
    QApplication::processEvents();
    auto& list = child<QListWidget>(view, "listPointIndex");
    ASSERT_EQ(list.count(), 3);

    list.setCurrentRow(0);
    child<QPushButton>(view, "cmdUp").click();
    EXPECT_EQ(list.item(0)->text(), "Point1: X:2, Y:0,Z:0");
    EXPECT_EQ(list.item(2)->text(), "Point3: X:1, Y:0,Z:0");
    EXPECT_EQ(list.currentRow(), 2);
    EXPECT_EQ(form.listPointIndex.ListIndex, 2);
}
