#include "modelling/frmPointIndexSelect.h"

#include "geometry/CPoint3D.h"
#include "platform/Prompts.h"

frmPointIndexSelect::frmPointIndexSelect() {
    addControl("List1", List1);
    addControl("mnuSelect", mnuSelect, [this] { mnuSelect_Click(); });
    addControl("mnuCancel", mnuCancel, [this] { mnuCancel_Click(); });
}

void frmPointIndexSelect::initialize(const std::vector<std::shared_ptr<CPoint3D>>& points,
                                     int32_t goToPointIndex) {
    points_ = points;
    canceled_ = true;
    List1.items.clear();
    for (size_t i = 0; i < points_.size(); ++i) {
        List1.items.push_back("Point " + std::to_string(i + 1) + ": " + points_[i]->toString());
    }
    const bool listed =
        goToPointIndex >= 1 && goToPointIndex <= static_cast<int32_t>(points_.size());
    List1.ListIndex = listed ? goToPointIndex - 1 : -1;
}

void frmPointIndexSelect::mnuSelect_Click() {
    if (List1.ListIndex < 0 || List1.ListIndex >= static_cast<int>(points_.size())) {
        showMessage("Please select a point index or press cancel.", "Unable to select",
                    MessageIcon::Information);
        return;
    }
    selectedIndex_ = List1.ListIndex + 1;
    selectedPoint_ = points_[static_cast<size_t>(List1.ListIndex)];
    canceled_ = false;
    close();
}

void frmPointIndexSelect::mnuCancel_Click() {
    canceled_ = true;
    close();
}
