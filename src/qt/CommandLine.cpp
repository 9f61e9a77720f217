#include "qt/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

namespace {

CommandLine failed(const QString& why) {
    CommandLine line;
    line.action = CommandLine::Action::Fail;
    line.text = why.toStdString() + " usage: korvan [--record MACRO | --replay MACRO] [FILE]";
    return line;
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription("Korvan, an editor of polygon meshes.");
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption record("record", "Write what you do to the macro MACRO.", "MACRO");
    const QCommandLineOption replay("replay", "Play the macro MACRO in the window.", "MACRO");
    parser.addOption(record);
    parser.addOption(replay);
    parser.addPositionalArgument("FILE", "A .tvm file, or a mesh to import, opened at start.",
                                 "[FILE]");
    if (!parser.parse(arguments)) {
        return failed(parser.errorText());
    }
    CommandLine line;
    if (parser.isSet(help) || parser.isSet(version)) {
        line.action = Action::Print;
        line.text = parser.isSet(help) ? parser.helpText().toStdString()
                                       : (QCoreApplication::applicationName() + ' ' +
                                          QCoreApplication::applicationVersion() + '\n')
                                             .toStdString();
        return line;
    }
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1) {
        return failed("Only one FILE can be opened.");
    }
    if (parser.isSet(record) && parser.isSet(replay)) {
        return failed("--record and --replay cannot go together.");
    }
    if (parser.isSet(replay) && !files.isEmpty()) {
        return failed("A replay starts from the start-up document; it opens no FILE.");
    }
    if ((parser.isSet(record) && parser.value(record).isEmpty()) ||
        (parser.isSet(replay) && parser.value(replay).isEmpty())) {
        return failed("The macro's name is empty.");
    }
    line.record = parser.value(record).toStdString();
    line.replay = parser.value(replay).toStdString();
    // A macro records the file by this name, so it must not depend on the folder it was made in.
    line.file =
        files.isEmpty() ? std::string() : QFileInfo(files.front()).absoluteFilePath().toStdString();
    return line;
}
