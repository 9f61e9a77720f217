#pragma once

#include "app/DocumentCommand.h"
#include "geometry/PointRecord.h"
#include "scene/Profile.h"

#include <memory>
#include <vector>

// A profile's points and visibility before and after its property dialog: which point
// objects it lists, in which order, and the records of those points. The dialog's Modify
// changes a shared point at once, even when the dialog is then cancelled or the point is
// then removed, so the edit keeps the values of every point listed before or after. Of a
// record only the model point tells a change: every redraw writes the projected one.
//
// Usage: ProfileEdit::Snapshot before = ProfileEdit::capture(profile); then the dialog; then
// ProfileEdit::since(before) gives the edit, or nothing when nothing changed.
class ProfileEdit : public DocumentCommand {
public:
    struct Snapshot {
        std::shared_ptr<Profile> profile;
        CPointList points;
        std::vector<PointRecord> records; // one per entry of points
        bool visible = true;
    };

    static Snapshot capture(const std::shared_ptr<Profile>& profile);
    static std::unique_ptr<ProfileEdit> since(const Snapshot& before);

    void undo(SceneDocument& document) override;
    void redo(SceneDocument& document) override;
    size_t byteSize() const override;
    bool changesSavedFile() const override { return false; }

private:
    struct PointValues {
        std::shared_ptr<CPoint3D> point;
        PointRecord before;
        PointRecord after;
    };

    ProfileEdit() = default;
    void restore(const CPointList& points, bool visible, PointRecord PointValues::*record);

    std::shared_ptr<Profile> profile_;
    CPointList beforePoints_;
    CPointList afterPoints_;
    bool beforeVisible_ = true;
    bool afterVisible_ = true;
    std::vector<PointValues> values_; // each point listed before or after, once
};
