#pragma once

#include "platform/Clock.h"

#include <QElapsedTimer>

// Milliseconds since the clock was made, wrapping around like a 32-bit tick count.
class QtClock : public Clock {
public:
    QtClock() { timer_.start(); }
    uint32_t tickCount() override { return static_cast<uint32_t>(timer_.elapsed()); }

private:
    QElapsedTimer timer_;
};
