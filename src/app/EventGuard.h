#pragma once

#include <functional>

// Where events from the desktop enter the program (menus, keys, mouse, dialog buttons): an
// exception that escapes the handler is shown as a critical message and stops there, so
// the document stays open and the program goes on.
namespace EventGuard {

void run(const std::function<void()>& handler);

} // namespace EventGuard
