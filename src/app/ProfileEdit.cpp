#include "app/ProfileEdit.h"

#include "app/SameBits.h"
#include "geometry/CPoint3D.h"

#include <algorithm>
#include <unordered_set>

ProfileEdit::Snapshot ProfileEdit::capture(const std::shared_ptr<Profile>& profile) {
    Snapshot snapshot{profile, {}, {}, true};
    if (profile) {
        snapshot.points = profile->getPoints();
        snapshot.visible = profile->isVisible();
        for (const auto& point : snapshot.points) {
            snapshot.records.push_back(point->getRecord());
        }
    }
    return snapshot;
}

std::unique_ptr<ProfileEdit> ProfileEdit::since(const Snapshot& before) {
    if (!before.profile) {
        return nullptr;
    }
    std::unique_ptr<ProfileEdit> edit(new ProfileEdit());
    edit->profile_ = before.profile;
    edit->beforePoints_ = before.points;
    edit->afterPoints_ = before.profile->getPoints();
    edit->beforeVisible_ = before.visible;
    edit->afterVisible_ = before.profile->isVisible();
    bool changed =
        edit->beforePoints_ != edit->afterPoints_ || edit->beforeVisible_ != edit->afterVisible_;
    std::unordered_set<const CPoint3D*> seen;
    for (size_t i = 0; i < before.points.size(); ++i) {
        const auto& point = before.points[i];
        if (seen.insert(point.get()).second) {
            edit->values_.push_back({point, before.records[i], point->getRecord()});
            changed = changed || !sameBits(before.records[i].coord, point->getRecord().coord);
        }
    }
    for (const auto& point : edit->afterPoints_) {
        if (seen.insert(point.get()).second) {
            edit->values_.push_back({point, point->getRecord(), point->getRecord()});
        }
    }
    return changed ? std::move(edit) : nullptr;
}

void ProfileEdit::undo(SceneDocument& /*document*/) {
    restore(beforePoints_, beforeVisible_, &PointValues::before);
}

void ProfileEdit::redo(SceneDocument& /*document*/) {
    restore(afterPoints_, afterVisible_, &PointValues::after);
}

size_t ProfileEdit::byteSize() const {
    // Points the dialog added or removed may be held by this edit alone.
    return sizeof(*this) +
           (beforePoints_.size() + afterPoints_.size()) * sizeof(std::shared_ptr<CPoint3D>) +
           values_.size() * (sizeof(PointValues) + sizeof(CPoint3D));
}

void ProfileEdit::restore(const CPointList& points, bool visible,
                          PointRecord PointValues::*record) {
    for (const PointValues& values : values_) {
        values.point->setRecord(values.*record);
    }
    profile_->clear();
    for (const auto& point : points) {
        profile_->addCPoint(point);
    }
    profile_->setVisible(visible);
}
