#include "modelling/frmProfileProperty.h"

#include "geometry/CPoint3D.h"
#include "geometry/NumberText.h"
#include "platform/Prompts.h"

#include <algorithm>

namespace {

// One coordinate of the point entry. A text that is not a number asks again; an empty one
// (also a cancelled box) gives up.
std::optional<float> enterCoordinate(const std::string& prompt, const std::string& title,
                                     float defaultValue) {
    const std::string defaultText = NumberText::single(defaultValue);
    for (;;) {
        const std::optional<std::string> answer =
            activePrompts().inputBox(prompt, title, defaultText);
        if (!answer || answer->empty()) {
            return std::nullopt;
        }
        if (const std::optional<float> value = NumberText::parseSingle(*answer)) {
            return value;
        }
    }
}

} // namespace

frmProfileProperty::frmProfileProperty() {
    addControl("Label4", Label4);
    addControl("listPointIndex", listPointIndex);
    addControl("cmdAdd", cmdAdd, [this] { cmdAdd_Click(); });
    addControl("cmdModify", cmdModify, [this] { cmdModify_Click(); });
    addControl("cmdRemove", cmdRemove, [this] { cmdRemove_Click(); });
    addControl("cmdUp", cmdUp, [this] { cmdUp_Click(); });
    addControl("cmdDown", cmdDown, [this] { cmdDown_Click(); });
    addControl("chkSwitchOrientation", chkSwitchOrientation);
    addControl("chkVisible", chkVisible);
    addControl("mnuAccept", mnuAccept, [this] { mnuAccept_Click(); });
    addControl("mnuCancel", mnuCancel, [this] { mnuCancel_Click(); });
}

void frmProfileProperty::initialize(const std::shared_ptr<Profile>& editedProfile) {
    profile = editedProfile;
    points = profile->getPoints();
    fillList(-1);
    chkVisible.Value = profile->isVisible();
}

std::optional<Point4> frmProfileProperty::enterPoint(const Point4& defaults) {
    const auto x = enterCoordinate("Enter X value:", "X Coordinate Input", defaults.x);
    if (!x) {
        return std::nullopt;
    }
    const auto y = enterCoordinate("Enter Y value:", "Y Coordinate Input", defaults.y);
    if (!y) {
        return std::nullopt;
    }
    const auto z = enterCoordinate("Enter Z value:", "Z Coordinate Input", defaults.z);
    if (!z) {
        return std::nullopt;
    }
    return Point4{*x, *y, *z, 1};
}

void frmProfileProperty::fillList(int selected) {
    listPointIndex.items.clear();
    for (size_t i = 0; i < points.size(); ++i) {
        listPointIndex.items.push_back("Point" + std::to_string(i + 1) + ": " +
                                       points[i]->toString());
    }
    listPointIndex.ListIndex = selected;
}

void frmProfileProperty::cmdAdd_Click() {
    const std::optional<Point4> coord = enterPoint(Point4{});
    if (!coord) {
        return;
    }
    PointRecord record;
    record.coord = *coord;
    auto point = std::make_shared<CPoint3D>();
    point->setRecord(record);
    points.push_back(point);
    fillList(-1);
}

void frmProfileProperty::cmdModify_Click() {
    const int line = listPointIndex.ListIndex;
    if (line < 0) {
        return;
    }
    CPoint3D& point = *points[static_cast<size_t>(line)];
    PointRecord record = point.getRecord();
    const std::optional<Point4> coord = enterPoint(record.coord);
    if (!coord) {
        return;
    }
    record.coord = *coord;
    point.setRecord(record);
    fillList(line);
}

void frmProfileProperty::cmdRemove_Click() {
    const int line = listPointIndex.ListIndex;
    if (line < 0) {
        return;
    }
    points.erase(points.begin() + line);
    fillList(-1);
}

void frmProfileProperty::cmdUp_Click() {
    const int line = listPointIndex.ListIndex;
    if (line < 0) {
        return;
    }
    if (line == 0) {
        std::rotate(points.begin(), points.begin() + 1, points.end());
        fillList(static_cast<int>(points.size()) - 1);
        return;
    }
    std::swap(points[static_cast<size_t>(line)], points[static_cast<size_t>(line - 1)]);
    fillList(line - 1);
}

void frmProfileProperty::cmdDown_Click() {
    const int line = listPointIndex.ListIndex;
    if (line < 0) {
        return;
    }
    const int last = static_cast<int>(points.size()) - 1;
    if (line == last) {
        std::rotate(points.begin(), points.begin() + last, points.end());
        fillList(0);
        return;
    }
    std::swap(points[static_cast<size_t>(line)], points[static_cast<size_t>(line + 1)]);
    fillList(line + 1);
}

void frmProfileProperty::mnuAccept_Click() {
    // Shown without a profile, there is nothing to change.
    if (!profile) {
        close();
        return;
    }
    profile->clear();
    for (const auto& point : points) {
        profile->addCPoint(point);
    }
    if (chkSwitchOrientation.Value) {
        profile->changeOrientation();
    }
    profile->setVisible(chkVisible.Value);
    close();
}

void frmProfileProperty::mnuCancel_Click() {
    close();
}
