#pragma once

#include "modelling/frmExtrude.h"

#include <QDialog>
#include <array>
#include <functional>

class QCheckBox;
class QFrame;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QScrollBar;

// Shows the extrusion dialog's logic (frmExtrude): length and subdivisions, orientation,
// caps, the list of additional transformations with its buttons, the surface groups and
// the Extrude, Preview and Cancel commands. Extrude is the default button; Escape cancels.
// Every change goes to the logic by the control's name, and the widgets then show the
// logic's state again; the view closes when the logic does.
class frmExtrudeView : public QDialog {
    Q_OBJECT
public:
    explicit frmExtrudeView(frmExtrude& form, QWidget* parent = nullptr);

    // Escape and the window's close box: the logic's Cancel.
    void reject() override;

private:
    // Runs a user action on the logic through the event guard, then shows the new state.
    void act(const std::function<void()>& action);
    void showState();

    frmExtrude& form_;
    QLineEdit* txtExtrusionLength_;
    QLineEdit* txtIncrements_;
    std::array<QRadioButton*, 3> optExtrude_{};
    QCheckBox* chkCapEnds_;
    QListWidget* List1_;
    QCheckBox* useAmbient_;
    QLabel* lblAmbColor_;
    QFrame* picAmbColor_;
    QPushButton* cmdColorSelect_;
    QCheckBox* useDiffuse_;
    QLabel* lblDifColor_;
    QFrame* picDifColor_;
    QPushButton* cmdColorSelect2_;
    QCheckBox* UseSpecularK_;
    std::array<QLabel*, 3> reflectionLabels_{}; // Least, Reflection, Most
    QScrollBar* HScrollSpecK_;
    QCheckBox* useSpecularN_;
    std::array<QLabel*, 3> intensityLabels_{}; // Least, Intensity, Most
    QScrollBar* HScrollSpecN_;
};
