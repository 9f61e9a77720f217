#pragma once

#include <QStringList>
#include <string>

// What the editor's command line asks for: korvan [--record MACRO | --replay MACRO] [FILE],
// or --help or --version, which are printed. FILE is made absolute. A replay plays from the
// start-up document, so it takes no FILE.
struct CommandLine {
    enum class Action { Run, Print, Fail };

    // The arguments as the program got them, its name first.
    static CommandLine parse(const QStringList& arguments);

    Action action = Action::Run;
    // Print: the text for standard output; Fail: the one line saying why, with the usage.
    std::string text;
    std::string record;
    std::string replay;
    std::string file;
};
