#include "app/EventGuard.h"

#include "platform/Prompts.h"

#include <exception>
#include <string>

namespace {

void report(const std::string& what) {
    showMessage("The command could not be completed: " + what, "Unexpected error",
                MessageIcon::Critical);
}

} // namespace

void EventGuard::run(const std::function<void()>& handler) {
    try {
        handler();
    } catch (const Stop&) {
        throw;
    } catch (const std::exception& e) {
        report(e.what());
    } catch (...) {
        report("unknown error");
    }
}
