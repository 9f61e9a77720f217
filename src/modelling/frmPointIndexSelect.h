#pragma once

#include "platform/ModalDialog.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class CPoint3D;

// Picks one point of a solid, for the face dialog's point indices. The Qt view
// (qt/frmPointIndexSelectView) shows it.
//
// Usage: initialize(points, goToPointIndex), show the dialog modally, then unless
// hasCanceled() read getSelectedIndex() and getSelectedPoint().
class frmPointIndexSelect : public ModalDialog {
public:
    ListState List1;
    ButtonState mnuSelect{"&Select"};
    ButtonState mnuCancel{"&Cancel"};

    frmPointIndexSelect();

    std::string caption() const override { return "Point Index Select"; }

    // Lists the points and selects point goToPointIndex (1-based; none when out of range).
    void initialize(const std::vector<std::shared_ptr<CPoint3D>>& points, int32_t goToPointIndex);
    bool hasCanceled() const { return canceled_; }
    // The chosen point's 1-based number and the point itself.
    int32_t getSelectedIndex() const { return selectedIndex_; }
    std::shared_ptr<CPoint3D> getSelectedPoint() const { return selectedPoint_; }

    void mnuSelect_Click();
    void mnuCancel_Click();

private:
    std::vector<std::shared_ptr<CPoint3D>> points_;
    bool canceled_ = true;
    int32_t selectedIndex_ = 0;
    std::shared_ptr<CPoint3D> selectedPoint_;
};
