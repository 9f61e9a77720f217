#include "qt/CommandLine.h"

#include <QCoreApplication>
#include <QDir>
#include <gtest/gtest.h>

TEST(CommandLine, AFileBesideAMacroOptionHelpAndVersionPrintedAndEveryMistakeRefused) {
    QCoreApplication::setApplicationVersion("2.0");
    const auto parse = [](const QStringList& args) {
        return CommandLine::parse(QStringList{"korvan"} + args);
    };
    const CommandLine file = parse({"--record", "m.macro", "scene.tvm"});
    EXPECT_EQ(file.action, CommandLine::Action::Run);
    EXPECT_EQ(file.file, QDir::current().absoluteFilePath("scene.tvm").toStdString());
    EXPECT_EQ(file.record, "m.macro");
    EXPECT_NE(parse({"--help"}).text.find("[FILE]"), std::string::npos);
    EXPECT_EQ(parse({"--version"}).text, "korvan_qt_tests 2.0\n");

    const std::pair<QStringList, std::string> refused[] = {
        {{"--bogus"}, "Unknown option 'bogus'."},
        {{"a.tvm", "b.tvm"}, "Only one FILE can be opened."},
        {{"--replay", "m", "a.tvm"}, "A replay starts from the start-up document; it opens no"},
        {{"--record", "a", "--replay", "b"}, "--record and --replay cannot go together."},
        {{"--record", ""}, "The macro's name is empty."},
    };
    for (const auto& [args, why] : refused) {
        const CommandLine line = parse(args);
        EXPECT_EQ(line.action, CommandLine::Action::Fail) << why;
        EXPECT_EQ(line.text.rfind(why, 0), 0u) << line.text;
    }
}
