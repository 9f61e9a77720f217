#pragma once

// What the mouse sensitivity dialog calls back: the window that holds the sensitivity.
class MouseSensivityTarget {
public:
    virtual ~MouseSensivityTarget() = default;
    virtual void setMouseSensivity(float Sensivity) = 0;
};
