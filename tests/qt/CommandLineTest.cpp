#include "qt/CommandLine.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

TEST(CommandLine, AFileBesideAMacroOptionHelpAndVersionPrintedAndEveryMistakeRefused) {
    QCoreApplication::setApplicationVersion("2.0");
    const auto parse = [](const QStringList& args) {
        return CommandLine::parse(QStringList{"korvan"} + args);
    };
    using Action = CommandLine::Action;
    const CommandLine none = parse({});
    EXPECT_EQ(none.action, Action::Run);
    EXPECT_EQ(none.file, "");
    const CommandLine file = parse({"--record", "m.macro", "scene.tvm"});
    EXPECT_EQ(file.action, Action::Run);
    EXPECT_EQ(file.file, "scene.tvm");
    EXPECT_EQ(file.record, "m.macro");
    EXPECT_EQ(parse({"--replay", "m.macro"}).replay, "m.macro");

    const CommandLine help = parse({"--help"});
    EXPECT_EQ(help.action, Action::Print);
    EXPECT_NE(help.text.find("--record <MACRO>"), std::string::npos) << help.text;
    EXPECT_NE(help.text.find("[FILE]"), std::string::npos) << help.text;
    const CommandLine version = parse({"--version"});
    EXPECT_EQ(version.action, Action::Print);
    EXPECT_NE(version.text.find("2.0"), std::string::npos) << version.text;

    const std::pair<QStringList, std::string> refused[] = {
        {{"--bogus"}, "Unknown option 'bogus'."},
        {{"--record"}, "Missing value after '--record'."},
        {{"a.tvm", "b.tvm"}, "Only one FILE can be opened."},
        {{"--replay", "m.macro", "a.tvm"}, "A replay starts from the start-up document"},
        {{"--record", "a", "--replay", "b"}, "--record and --replay cannot go together."},
        {{"--record", ""}, "The macro's name is empty."},
    };
    for (const auto& [args, why] : refused) {
        const CommandLine line = parse(args);
        EXPECT_EQ(line.action, Action::Fail) << why;
        EXPECT_EQ(line.text.rfind(why, 0), 0u) << line.text;
        EXPECT_NE(line.text.find("usage: korvan [--record MACRO | --replay MACRO] [FILE]"),
                  std::string::npos)
            << line.text;
    }
}
