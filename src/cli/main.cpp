#include "cli/CliApp.h"

#include <iostream>

int main(int argc, char** argv) {
    try {
        const std::vector<std::string> args(argv + 1, argv + argc);
        CliApp app;
        return app.run(args, std::cout, std::cerr);
    } catch (...) {
        std::cerr << "korvan-cli: unexpected error\n";
        return 1;
    }
}
