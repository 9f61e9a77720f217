#include "macro/MacroPlayer.h"
#include "macro/HeadlessEditor.h"
#include "macro/MacroFile.h"
#include "render/BlankCanvas.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace {

// Six lines that make a workplane.
const std::string workplane = "menu \"&Create\" \"&WorkPlane\" \"&Parameter Creation\"\n"
                              "dialog \"Parametric WorkPlane Creation\" type Text1 \"4\"\n"
                              "dialog \"Parametric WorkPlane Creation\" type Text2 \"0\"\n"
                              "dialog \"Parametric WorkPlane Creation\" type Text3 \"0\"\n"
                              "dialog \"Parametric WorkPlane Creation\" type Text5 \"0\"\n"
                              "dialog \"Parametric WorkPlane Creation\" press mnuAccept\n";
const std::string noProfile = "Unable to extrude since no profiles were selected.  Please select "
                              "profile before extruding.";

// Plays the macro in an editor without a screen, taking files from the sandbox: the message
// it stopped with, or "".
std::string play(const std::string& text, const std::string& sandbox) {
    MacroFile macro(text);
    std::array<BlankCanvas, 4> canvases;
    HeadlessEditor editor(macro, {&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
    editor.player.setSandbox(sandbox);
    try {
        editor.player.playAll();
    } catch (const MacroPlayer::Error& error) {
        return (error.unreadable() ? "unreadable " : "") + std::string(error.what());
    }
    return "";
}

} // namespace

TEST(MacroPlayer, StopsAtALineThatDoesNotFitOrAnExpectationThatFails) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"menu \"&Create\" \"&WorkPlane\"\n",
         "line 1: the menu item &Create > &WorkPlane opens a menu; name an item in it"},
        {"resize 800 600\nkey x\n", "unreadable line 2: bad key code x"},
        {"menu \"&Create\" \"&Nothing\"\n", "line 1: the menu bar has no item &Create > &Nothing"},
        {"menu \"&Selectors\" \"&Property <enter>\"\n",
         "line 1: the menu item &Selectors > &Property <enter> is disabled"},
        {"menu \"&Create\" \"&Extrusion\"\n",
         "after line 1: the macro ends while a message box asks: " + noProfile},
        {"resize 800 600\n\nmouse-press 0 1 0 5 5\n", "line 3: viewport 0 is not shown"},
        {"menu \"&Create\" \"&WorkPlane\" \"&Parameter Creation\"\n"
         "dialog \"Parametric WorkPlane Creation\" press cmdNowhere\n",
         "line 2: Parametric WorkPlane Creation has no button named cmdNowhere"},
        {"expect count solids 1\n", "line 1: expected 1 solids, found 0"},
        {workplane + "expect count workplanes 1\nexpect selected workplanes 1\n",
         "line 8: expected 1 selected workplanes, found 0"},
        {workplane + "expect tree \"Workplane 1\" \"Points\"\n",
         "line 7: the scene tree has no node Workplane 1 > Points"},
        {"expect message \"Wrong\"\nmenu \"&Create\" \"&Extrusion\"\nmessage ok\n",
         "line 1: expected the message \"Wrong\", found \"" + noProfile + "\""},
        {"menu \"&Create\" \"&Extrusion\"\nexpect message \"Wrong\"\nmessage ok\n",
         "line 2: expected the message \"Wrong\", found \"" + noProfile + "\""},
        {"expect message \"" + noProfile +
             "\"\nresize 800 600\nmenu \"&Create\" \"&Extrusion\"\nmessage ok\n",
         "line 1: expected the message \"" + noProfile + "\", but no message box came"},
        {"resize 800 600\nexpect message \"" + noProfile + "\"\n",
         "line 2: expected the message \"" + noProfile + "\", but no message box came"},
        {workplane +
             "expect count workplanes 1\nexpect tree \"Workplane 1\"\n"
             "expect count solids 0\nexpect selected faces 0\nexpect message \"" +
             noProfile + "\"\nmenu \"&Create\" \"&Extrusion\"\nmessage ok\n",
         ""},
        {"menu \"&File\" \"&Save\"\nfile \"/tmp/..\"\n",
         "line 2: the file /tmp/.. has no name to find in the sandbox"},
    };
    TempFolder sandbox;
    for (const auto& [text, message] : cases) {
        EXPECT_EQ(play(text, sandbox.path.string()), message) << text;
    }
}

// The editor starts with a client area of its own size, so that a macro without a resize
// line clicks where the user did.
TEST(MacroPlayer, PlaysOnAWindowOfTheEditorsStartUpSize) {
    MacroFile macro("");
    std::array<BlankCanvas, 4> canvases;
    HeadlessEditor editor(macro, {&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
    EXPECT_EQ(canvases[3].scaleWidth(), frmTolvane::startUpClientWidth * 4 / 5);
    EXPECT_EQ(canvases[3].scaleHeight(), frmTolvane::startUpClientHeight);
}
