#include "macro/MacroSyntax.h"

#include <gtest/gtest.h>

namespace {

using Verb = ControlAction::Verb;
using Expect = macro::Expect::Kind;

} // namespace

TEST(MacroSyntax, EveryActionReadsBackAsWritten) {
    const std::vector<std::pair<MacroAction, std::string>> cases = {
        {macro::Resize{1000, 600}, "resize 1000 600"},
        {macro::Menu{false, {"&File", "&Save"}}, "menu \"&File\" \"&Save\""},
        {macro::Menu{true, {"&Display", "&WireFrame"}}, "popup \"&Display\" \"&WireFrame\""},
        {macro::Key{69}, "key 69"},
        {macro::Mouse{true, 3, 1, 2, 412, 230.5f}, "mouse-press 3 1 2 412 230.5"},
        {macro::Mouse{false, 0, 0, 0, -1e30f, 0.1f}, "mouse-move 0 0 0 -1e+30 0.1"},
        {macro::TreeClick{"f3-s1", {}}, "tree-click key \"f3-s1\""},
        {macro::TreeClick{"", {"Solid 1", "Points", "P1"}},
         "tree-click text \"Solid 1\" \"Points\" \"P1\""},
        {macro::TreeKey{46}, "tree-key 46"},
        {macro::Dialog{"Extrude", {Verb::Type, "txtIncrements", "say \"8\"\\\n\t", 0}},
         "dialog \"Extrude\" type txtIncrements \"say \\\"8\\\"\\\\\\n\\t\""},
        {macro::Dialog{"Extrude", {Verb::Check, "chkCapEnds", "", 0}},
         "dialog \"Extrude\" check chkCapEnds off"},
        {macro::Dialog{"Extrude", {Verb::Choose, "optExtrude(2)", "", 0}},
         "dialog \"Extrude\" choose optExtrude(2)"},
        {macro::Dialog{"Extrude", {Verb::Pick, "List1", "", -1}},
         "dialog \"Extrude\" pick List1 -1"},
        {macro::Dialog{"Face Properties", {Verb::Scroll, "HScrollSpecK", "", 53}},
         "dialog \"Face Properties\" scroll HScrollSpecK 53"},
        {macro::Dialog{"Odd", {Verb::Press, "a name", "", 0}}, "dialog \"Odd\" press \"a name\""},
        {macro::Message{MessageAnswer::No}, "message no"},
        {macro::Input{std::nullopt}, "input cancel"},
        {macro::Input{"cancel"}, "input \"cancel\""},
        {macro::Input{""}, "input \"\""},
        {macro::File{}, "file cancel"},
        {macro::File{"/tmp/a b.tvm"}, "file \"/tmp/a b.tvm\""},
        {macro::Color{0}, "color 0"},
        {macro::Color{-1}, "color cancel"},
        {macro::Expect{Expect::Message, {"Say \"no\""}, "", 0},
         "expect message \"Say \\\"no\\\"\""},
        {macro::Expect{Expect::Tree, {"Solid 1", "Faces"}, "", 0},
         "expect tree \"Solid 1\" \"Faces\""},
        {macro::Expect{Expect::Count, {}, "points", 8}, "expect count points 8"},
        {macro::Expect{Expect::Selected, {}, "faces", 0}, "expect selected faces 0"},
    };
    for (const auto& [action, line] : cases) {
        EXPECT_EQ(MacroSyntax::format(action), line);
        const std::optional<MacroAction> read = MacroSyntax::parse(line);
        ASSERT_TRUE(read.has_value()) << line;
        EXPECT_EQ(MacroSyntax::format(*read), line);
    }
}

TEST(MacroSyntax, SaysWhyALineIsNoAction) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"resize 10", "missing height"},
        {"resize 10 20 30", "unexpected 30"},
        {"key 1.5", "bad key code 1.5"},
        {"mouse-press 4 1 0 1 1", "bad viewport 4"},
        {"mouse-move 0 1 0 nan 1", "bad x nan"},
        {"menu", "missing menu captions"},
        {"dialog \"X\" check c maybe", "bad check state maybe (on or off)"},
        {"dialog \"X\" wave c", "unknown dialog action wave"},
        {"message perhaps", "bad message answer perhaps (ok, yes, no, save, discard or cancel)"},
        {"color 16777216", "bad colour 16777216"},
        {"file \"\"", "empty path (write cancel for a cancelled file dialog)"},
        {"input \"open", "a quoted text has no closing quote"},
        {"input \"a\"b", "a quoted text runs into the next word"},
        {"input \"\\q\"", "unknown escape \\q"},
        {"jump 1", "unknown action jump"},
        {"expect", "missing message, tree, count or selected"},
        {"expect colour red", "bad expect colour (message, tree, count or selected)"},
        {"expect tree", "missing node texts"},
        {"expect count lights 1",
         "bad items lights (solids, workplanes, profiles, faces or points)"},
        {"expect selected points 1", "bad items points (solids, workplanes, profiles or faces)"},
        {"expect count solids -1", "bad count -1"},
    };
    for (const auto& [line, message] : cases) {
        try {
            MacroSyntax::parse(line);
            ADD_FAILURE() << line;
        } catch (const MacroSyntax::Error& error) {
            EXPECT_EQ(std::string(error.what()), message) << line;
        }
    }
    for (const std::string blank : {"", "# a comment", "  \t\r"}) {
        EXPECT_FALSE(MacroSyntax::parse(blank).has_value()) << blank;
    }
}
