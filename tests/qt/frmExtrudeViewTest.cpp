#include "qt/frmExtrudeView.h"

#include "geometry/CPoint3D.h"
#include "modelling/ExtrusionPreviewTarget.h"
#include "qt/QtModalHost.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "support/ScriptedChoosers.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

class NoViewports : public ExtrusionPreviewTarget {
public:
    void getPicOrthoBounds(int32_t& lower, int32_t& upper) const override {
        lower = 0;
        upper = -1;
    }
    Canvas* getPicOrtho(int32_t) const override { return nullptr; }
    std::optional<viewInfo> getViewInfo(int32_t) const override { return std::nullopt; }
};

// A closed square standing on a corner in the plane z = 0.
std::shared_ptr<Profile> diamond() {
    auto profile = std::make_shared<Profile>();
    for (const auto& [x, y] : {std::pair{0.0f, 0.0f}, {1.0f, 1.0f}, {0.0f, 2.0f}, {-1.0f, 1.0f}}) {
        PointRecord record;
        record.coord = Point4{x, y, 0.0f, 1.0f};
        profile->addPointRecord(record);
    }
    profile->addCPoint(profile->getCPoint(1));
    return profile;
}

void key(QWidget& widget, Qt::Key code, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &press);
}

struct Dialog {
    ScriptedModalHost dialogs;
    ScriptedColorChooser colors;
    NoViewports viewports;
    frmExtrude form{dialogs, colors, viewports};
    frmExtrudeView view{form};

    Dialog() {
        form.initialize(diamond());
        view.show();
        QApplication::processEvents();
    }
    QLineEdit& box(const char* name) { return *view.findChild<QLineEdit*>(name); }
    QPushButton* defaultButton() {
        for (QPushButton* button : view.findChildren<QPushButton*>()) {
            if (button->isDefault()) {
                return button;
            }
        }
        return nullptr;
    }
};

} // namespace

TEST(frmExtrudeView, TypedValuesAndTheDefaultButtonExtrude) {
    ScriptedPrompts prompts;
    Dialog dialog;
    QPushButton* extrude = dialog.defaultButton();
    ASSERT_NE(extrude, nullptr);
    EXPECT_EQ(extrude->text(), "&Extrude");

    QLineEdit& increments = dialog.box("txtIncrements");
    increments.setFocus();
    increments.selectAll();
    key(increments, Qt::Key_4, "4");
    EXPECT_EQ(dialog.form.txtIncrements.Text, "4");
    key(increments, Qt::Key_Return); // Enter presses the default button
    EXPECT_TRUE(dialog.form.isClosed());
    EXPECT_FALSE(dialog.view.isVisible());
    ASSERT_TRUE(dialog.form.getExtrusion());
    EXPECT_EQ(dialog.form.getExtrusion()->getTransformationCount(), 4);
}

TEST(frmExtrudeView, BadInputEmptiesTheBoxAndKeepsTheDialogOpen) {
    ScriptedPrompts prompts;
    Dialog dialog;
    QLineEdit& length = dialog.box("txtExtrusionLength");
    length.selectAll();
    key(length, Qt::Key_A, "a");
    dialog.defaultButton()->click();
    EXPECT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(length.text(), "");
    EXPECT_TRUE(dialog.view.isVisible());
    EXPECT_FALSE(dialog.form.isClosed());
}

TEST(frmExtrudeView, EscapeCancels) {
    ScriptedPrompts prompts;
    Dialog dialog;
    key(dialog.view, Qt::Key_Escape);
    EXPECT_TRUE(dialog.form.isClosed());
    EXPECT_FALSE(dialog.view.isVisible());
    EXPECT_FALSE(dialog.form.getExtrusion());
}

TEST(frmExtrudeView, ARefusedProfileIsNotShown) {
    ScriptedPrompts prompts;
    ScriptedModalHost scripted;
    ScriptedColorChooser colors;
    NoViewports viewports;
    frmExtrude form(scripted, colors, viewports);
    form.initialize(nullptr);

    QtModalHost host;
    host.registerView<frmExtrude, frmExtrudeView>();
    bool shown = false;
    QTimer::singleShot(0, [&shown] {
        if (QWidget* open = QApplication::activeModalWidget()) {
            shown = true;
            open->close();
        }
    });
    host.showModal(form);
    QApplication::processEvents();
    EXPECT_FALSE(shown);
}
