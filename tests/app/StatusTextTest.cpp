#include "app/StatusText.h"

#include "support/TestSolids.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

TEST(StatusText, EachModeChosenOnTheBarOrPopupHasItsOwnHintAndTheProfileToolAddsThePointer) {
    TestWindow w;
    EXPECT_EQ(w.frame.modeHint(), "Rotate: drag with the left button to turn the view");
    const std::pair<std::vector<std::string>, std::string> modes[] = {
        {{"&View", "&Movement", "&Scoll"},
         "Scroll (pan): drag with the left button to move the view"},
        {{"&View", "&Movement", "&Zoom"}, "Zoom: drag up or down with the left button to zoom"},
        {{"&Selectors", "S&olid Selector"}, "Solid Selector: click a solid to select it"},
        {{"&Selectors", "&Face Selector"}, "Face Selector: click a face to select it"},
        {{"&Selectors", "&WorkPlane Selector"},
         "WorkPlane Selector: click a workplane to select it"},
        {{"&Selectors", "&Profile Selector"}, "Profile Selector: click a profile to select it"},
        {{"&View", "&Movement", "&Rotate"}, "Rotate: drag with the left button to turn the view"},
    };
    for (const auto& [path, hint] : modes) {
        w.choose(path);
        EXPECT_EQ(w.frame.modeHint(), hint) << path.back();
    }
    w.popup(3, {"&Movement", "&Zoom"});
    EXPECT_EQ(w.frame.modeHint(), modes[1].second);

    const auto plane = makeWorkPlane(4, 0, 0, 1.5f);
    w.form.getDocument().workPlanes.push_back(plane);
    w.form.getSelection().setSelectedWorkplanes({plane});
    w.choose({"&Create", "&Profile"});
    const Point4 at = w.pixel(3, 1.25f, -3.5f, 0);
    w.form.picOrtho_MouseMove(3, 0, 0, at.x, at.y);
    const std::string profile = "Profile: click to add a point, C or middle button closes";
    EXPECT_EQ(w.frame.modeHint(), profile + "    x 1.25  y -3.50  z -1.50");
    w.form.getSelection().setSelectedWorkplanes({});
    w.form.picOrtho_MouseMove(3, 0, 0, at.x, at.y);
    EXPECT_EQ(w.frame.modeHint(), profile);
    w.prompts.queueAnswer(MessageAnswer::Yes);
    w.choose({"&Profile", "C&ancel Profile"});
    EXPECT_EQ(w.frame.modeHint(), "No mouse mode: choose one under View > Movement or Selectors");
}

TEST(StatusText, CountsAreGroupedByThousandsAndPositionsNeverShowMinusZero) {
    EXPECT_EQ(StatusText::pointerPosition(-0.004f, 0.006f, -2), "x 0.00  y 0.01  z -2.00");
    EXPECT_EQ(StatusText::solidsAndFaces(ObjectList(166667, makeObject())),
              "166,667 solids, 1,000,002 faces");
}
