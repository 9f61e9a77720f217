#include "app/UndoHistory.h"

#include "app/FaceEdit.h"
#include "app/ListChange.h"
#include "app/ProfileEdit.h"
#include "app/SolidEdit.h"
#include "app/WorkplaneEdit.h"
#include "geometry/CPoint3D.h"
#include "support/TestSolids.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

std::string logged; // what the commands of a test did, in order

// A change that only writes down what is done with it.
struct LoggedCommand : DocumentCommand {
    char tag;
    bool saved;
    LoggedCommand(char t, bool s) : tag(t), saved(s) {}
    void undo(SceneDocument&) override { logged += {'-', tag}; }
    void redo(SceneDocument&) override { logged += {'+', tag}; }
    size_t byteSize() const override { return 1000; }
    bool changesSavedFile() const override { return saved; }
};

// One command per tag; a blank stands for a dialog that changed nothing (no command).
std::vector<std::unique_ptr<DocumentCommand>> step(const std::string& tags, bool saved = true) {
    std::vector<std::unique_ptr<DocumentCommand>> commands;
    for (const char tag : tags) {
        commands.push_back(tag == ' ' ? nullptr : std::make_unique<LoggedCommand>(tag, saved));
    }
    return commands;
}

} // namespace

TEST(UndoHistory, StepsUndoInReverseRedoInOrderAndOnlyTheirBytesLimitThem) {
    SceneDocument document;
    UndoHistory history;
    history.push("A", step("xy"));
    logged.clear();
    history.undo(document);
    history.redo(document);
    EXPECT_EQ(logged, "-y-x+x+y");
    for (int i = 0; i < 120; ++i) {
        history.push("small", step("s"));
    }
    EXPECT_EQ(history.stepCount(), 121u); // no limit but the bytes
}

TEST(UndoHistory, OverTheBudgetTheOldestStepsGoButTheNewestStays) {
    SceneDocument document;
    UndoHistory measure;
    measure.push("A", step("x"));
    const size_t oneStep = measure.byteSize();
    UndoHistory history(oneStep * 5 / 2);
    for (const char* name : {"A", "B", "C"}) {
        history.push(name, step("x", false));
    }
    EXPECT_EQ(history.stepCount(), 2u);
    EXPECT_EQ(history.byteSize(), 2 * oneStep);
    history.undo(document);
    history.undo(document);
    // The document is no longer the one it started as, nor can it get back there.
    EXPECT_TRUE(history.isModified());
    history.push("D", step("xyz"));
    EXPECT_EQ(history.stepCount(), 1u);
    EXPECT_EQ(history.undoName(), "D");
}

TEST(UndoHistory, OnlyStepsThatChangeTheSavedFileLeaveTheCleanPoint) {
    SceneDocument document;
    UndoHistory history;
    EXPECT_FALSE(history.isModified());
    history.push("solid", step("s"));
    EXPECT_TRUE(history.isModified());
    history.markClean();
    history.push("workplane", step("w", false));
    EXPECT_FALSE(history.isModified());
    history.undo(document);
    history.undo(document);
    EXPECT_TRUE(history.isModified());
    history.redo(document);
    EXPECT_FALSE(history.isModified());
}

TEST(ListChange, UndoFindsAnInsertByItsPointerPutsARemovalBackAndMakesItCurrentAgain) {
    SceneDocument document;
    const auto a = makeObject(), b = makeObject(), c = makeObject();
    document.solids = {a, b, c};
    EXPECT_EQ(ListChange<Transformed3d>::remove(document, 4), nullptr);
    const auto removal = ListChange<Transformed3d>::remove(document, 2);
    EXPECT_EQ(document.solids, (std::vector{a, c}));
    EXPECT_GT(removal->byteSize(), 8 * sizeof(PointRecord) + 6 * sizeof(Face3d));
    EXPECT_TRUE(removal->changesSavedFile());
    removal->undo(document);
    EXPECT_EQ(document.solids, (std::vector{a, b, c}));
    removal->redo(document);
    document.solids.clear();
    removal->undo(document);
    EXPECT_EQ(document.solids, (std::vector{b}));

    document.solids = {a, c};
    const auto insertion = ListChange<Transformed3d>::insert(document, b, 2);
    EXPECT_EQ(document.solids, (std::vector{a, b, c}));
    EXPECT_LT(insertion->byteSize(), 8 * sizeof(PointRecord));
    document.solids = {b, a, c};
    insertion->undo(document);
    EXPECT_EQ(document.solids, (std::vector{a, c}));

    const auto p = makeDiamondProfile(), q = makeDiamondProfile();
    document.profiles = {p, q};
    document.currentProfile = q;
    ListChange<Profile>::remove(document, 1)->undo(document);
    EXPECT_EQ(document.currentProfile, q);
    const auto current = ListChange<Profile>::remove(document, 2);
    EXPECT_EQ(document.currentProfile, nullptr);
    EXPECT_FALSE(current->changesSavedFile());
    current->undo(document);
    EXPECT_EQ(document.currentProfile, q);
    EXPECT_EQ(document.profiles, (std::vector{p, q}));
}

TEST(FaceEdit, KeepsOnlyTheChangedFacesAndRestoresThemExactly) {
    SceneDocument document;
    const auto cube = makeCube();
    Face3d& face = *cube->faces[2];
    const std::vector<int32_t> corners = face.getIndices();
    auto before = FaceEdit::capture(cube->faces);
    EXPECT_EQ(FaceEdit::since(before), nullptr);
    face.DiffuseKg = 0.5f;
    face.SetPoints({1, 2, 3});
    const auto one = FaceEdit::since(before);
    before = FaceEdit::capture(cube->faces);
    face.SpecularN = -0.0f;
    cube->faces[4]->AmbientKb = 0.25f;
    const auto two = FaceEdit::since(before);
    EXPECT_LT(one->byteSize(), two->byteSize());

    two->undo(document);
    EXPECT_FALSE(std::signbit(face.SpecularN));
    one->undo(document);
    EXPECT_EQ(face.DiffuseKg, 0.0f);
    EXPECT_EQ(face.getIndices(), corners);
    EXPECT_EQ(face.NumPts, 4);
    EXPECT_EQ(cube->faces[4]->AmbientKb, 0.0f);
    one->redo(document);
    EXPECT_EQ(face.DiffuseKg, 0.5f);
    EXPECT_EQ(face.NumPts, 3);
}

TEST(SolidEdit, RestoresEveryFaceAndTheCornerOrderAndSeesNoChangeAsNone) {
    SceneDocument document;
    const auto object = makeObject();
    const FaceList& faces = object->getSolid()->faces;
    // Three sets in turn, one differing from the next only in the sign of a zero.
    for (size_t i = 0; i < faces.size(); ++i) {
        faces[i]->DiffuseKg = i % 3 == 0 ? 0.25f : 0.0f;
        faces[i]->SpecularN = i % 3 == 1 ? -0.0f : 0.0f;
    }
    const std::vector<int32_t> corners = faces[0]->getIndices();
    auto before = SolidEdit::capture(*object);
    EXPECT_EQ(SolidEdit::since(before, false), nullptr);
    const auto turned = SolidEdit::since(before, true);
    object->setSpecularK(0.5f); // the three sets stay three
    for (const auto& face : faces) {
        face->switchIndexOrientation();
    }
    const auto edit = SolidEdit::since(before, true);
    ASSERT_NE(edit, nullptr);

    edit->undo(document);
    for (size_t i = 0; i < faces.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(faces[i]->SpecularK, 0.0f);
        EXPECT_EQ(faces[i]->DiffuseKg, i % 3 == 0 ? 0.25f : 0.0f);
        EXPECT_EQ(std::signbit(faces[i]->SpecularN), i % 3 == 1);
    }
    EXPECT_EQ(faces[0]->getIndices(), corners);
    edit->redo(document);
    EXPECT_EQ(faces[5]->SpecularK, 0.5f);
    EXPECT_TRUE(std::signbit(faces[4]->SpecularN));
    EXPECT_EQ(faces[0]->getIndices(), std::vector(corners.rbegin(), corners.rend()));
    ASSERT_NE(turned, nullptr); // a reversal alone is a change
    turned->undo(document);
    EXPECT_EQ(faces[0]->getIndices(), corners);
    EXPECT_EQ(faces[5]->SpecularK, 0.5f);
}

TEST(WorkplaneEdit, EachValueMakesAnEditAndUndoRestoresThemAll) {
    SceneDocument document;
    const auto plane = makeWorkPlane(10, 0.5f, 0.25f, 1, 0x112233);
    const auto before = WorkplaneEdit::capture(plane);
    const auto accepted = [&](float size, float x, float y, float offset, int32_t color,
                              bool visible) {
        plane->initialize(size, x, y, offset, color);
        plane->setVisibility(visible);
        return WorkplaneEdit::since(before);
    };
    EXPECT_EQ(accepted(10, 0.5f, 0.25f, 1, 0x112233, true), nullptr);
    EXPECT_NE(accepted(11, 0.5f, 0.25f, 1, 0x112233, true), nullptr);
    EXPECT_NE(accepted(10, 0.6f, 0.25f, 1, 0x112233, true), nullptr);
    EXPECT_NE(accepted(10, 0.5f, 0.35f, 1, 0x112233, true), nullptr);
    EXPECT_NE(accepted(10, 0.5f, 0.25f, 2, 0x112233, true), nullptr);
    EXPECT_NE(accepted(10, 0.5f, 0.25f, 1, 0x112234, true), nullptr);
    EXPECT_NE(accepted(10, 0.5f, 0.25f, 1, 0x112233, false), nullptr);
    const auto edit = accepted(20, 1, 2, 3, 0x445566, false);
    edit->undo(document);
    EXPECT_EQ(plane->getSize(), 10.0f);
    EXPECT_EQ(plane->getXRotation(), 0.5f);
    EXPECT_EQ(plane->getYRotation(), 0.25f);
    EXPECT_EQ(plane->getOffset(), 1.0f);
    EXPECT_EQ(plane->getColor(), 0x112233);
    EXPECT_TRUE(plane->isVisible());
    edit->redo(document);
    EXPECT_EQ(plane->getOffset(), 3.0f);
    EXPECT_FALSE(plane->isVisible());
}

TEST(ProfileEdit, KeepsTheListAndThePointValuesButNotWhatARedrawWrites) {
    SceneDocument document;
    const auto profile = makeDiamondProfile();
    const CPointList points = profile->getPoints();
    CPoint3D& point = *points[1]; // at (1, 1)
    const PointRecord moved{{7, 1, 0, 1}, {}, {}};
    const auto before = ProfileEdit::capture(profile);
    profile->ApplyFull(canvasLayout(4));
    EXPECT_EQ(ProfileEdit::since(before), nullptr);
    point.setRecord(moved); // Modify, then Cancel
    const auto cancelled = ProfileEdit::since(before);
    ASSERT_NE(cancelled, nullptr);
    cancelled->undo(document);
    EXPECT_EQ(point.getRecord().coord.x, 1.0f);

    point.setRecord(moved); // Modify, remove that point, untick Visible, Accept
    profile->clear();
    profile->setVisible(false);
    const auto edit = ProfileEdit::since(before);
    edit->undo(document);
    EXPECT_EQ(profile->getPoints(), points);
    EXPECT_EQ(point.getRecord().coord.x, 1.0f);
    EXPECT_TRUE(profile->isVisible());
    edit->redo(document);
    EXPECT_EQ(profile->getPointCount(), 0);
    EXPECT_EQ(point.getRecord().coord.x, 7.0f);
    EXPECT_FALSE(profile->isVisible());
}
