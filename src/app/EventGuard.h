#pragma once

#include <functional>
#include <string>

// Where events from the desktop enter the program (menus, keys, mouse, dialog buttons): an
// exception that escapes the handler is shown as a critical message and stops there, so
// the document stays open and the program goes on.
namespace EventGuard {

void run(const std::function<void()>& handler);

// Thrown by whatever plays the user (a macro) when it cannot go on: there is no one to read
// a message, so the guard lets it pass to the player instead of reporting it.
struct Stop {
    std::string message;
};

} // namespace EventGuard
