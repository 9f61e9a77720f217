#pragma once

#include "interaction/ClickHandleNothing.h"

// Stands in for the face selector until it is written: the crosshair, nothing else.
class ClickHandleFaceSelector : public ClickHandleNothing {
public:
    MousePointer getMouseIcon() const override { return MousePointer::Crosshair; }
};
