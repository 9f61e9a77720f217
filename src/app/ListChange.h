#pragma once

#include "app/DocumentCommand.h"
#include "app/MemoryBytes.h"
#include "app/SceneDocument.h"

#include <algorithm>
#include <memory>
#include <type_traits>
#include <vector>

// An item inserted into or removed from one of the document's lists: its objects
// (Transformed3d), workplanes or profiles. Places are 1-based, as the scene tree numbers its
// nodes and SceneDocument::removeProfile numbers profiles.
//
// The change is made through insert or remove, which return its record. Undoing an insert
// takes out that item wherever it now stands; undoing a remove puts the item back at its
// place, or at the end when the list has become shorter. A profile removed while it was the
// current profile is forgotten as current, and becomes current again when the removal is
// undone.
template <class Item> class ListChange : public DocumentCommand {
public:
    // Inserts item at place (at the end when place is 0 or past the end).
    static std::unique_ptr<ListChange> insert(SceneDocument& document, std::shared_ptr<Item> item,
                                              size_t place) {
        std::unique_ptr<ListChange> change(new ListChange(std::move(item), place, true));
        change->putBack(document);
        return change;
    }

    // The record of an item the document already holds at place, added by other means: a
    // profile joins the document when it is started and becomes a step when it is closed.
    static std::unique_ptr<ListChange> inserted(std::shared_ptr<Item> item, size_t place) {
        std::unique_ptr<ListChange> change(new ListChange(std::move(item), place, true));
        change->inDocument_ = true;
        return change;
    }

    // Removes the item at place; nothing, and no record, when there is no such item.
    static std::unique_ptr<ListChange> remove(SceneDocument& document, size_t place) {
        auto& items = list(document);
        if (place < 1 || place > items.size()) {
            return nullptr;
        }
        std::unique_ptr<ListChange> change(new ListChange(items[place - 1], place, false));
        if constexpr (std::is_same_v<Item, Profile>) {
            change->wasCurrent_ = document.currentProfile == change->item_;
        }
        change->takeOut(document);
        return change;
    }

    void undo(SceneDocument& document) override {
        inserted_ ? takeOut(document) : putBack(document);
    }
    void redo(SceneDocument& document) override {
        inserted_ ? putBack(document) : takeOut(document);
    }

    // The item counts while it is out of the document: after a remove, or an undone insert.
    size_t byteSize() const override {
        return sizeof(*this) + (inDocument_ ? 0 : MemoryBytes::of(*item_));
    }
    bool changesSavedFile() const override { return std::is_same_v<Item, Transformed3d>; }

private:
    ListChange(std::shared_ptr<Item> item, size_t place, bool inserted)
        : item_(std::move(item)), place_(place), inserted_(inserted), inDocument_(!inserted) {}

    static std::vector<std::shared_ptr<Item>>& list(SceneDocument& document) {
        if constexpr (std::is_same_v<Item, Transformed3d>) {
            return document.solids;
        } else if constexpr (std::is_same_v<Item, WorkPlane>) {
            return document.workPlanes;
        } else {
            static_assert(std::is_same_v<Item, Profile>);
            return document.profiles;
        }
    }

    void putBack(SceneDocument& document) {
        auto& items = list(document);
        const size_t at = std::min(place_ - 1, items.size());
        items.insert(items.begin() + static_cast<std::ptrdiff_t>(at), item_);
        if constexpr (std::is_same_v<Item, Profile>) {
            if (wasCurrent_) {
                document.currentProfile = item_;
            }
        }
        inDocument_ = true;
    }

    void takeOut(SceneDocument& document) {
        std::erase(list(document), item_);
        if constexpr (std::is_same_v<Item, Profile>) {
            if (document.currentProfile == item_) {
                document.currentProfile.reset();
            }
        }
        inDocument_ = false;
    }

    std::shared_ptr<Item> item_;
    size_t place_;
    bool inserted_;
    bool inDocument_;
    bool wasCurrent_ = false; // profiles only: it was the current profile when removed
};
