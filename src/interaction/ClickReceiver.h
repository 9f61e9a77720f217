#pragma once

// The window that mouse modes call back: the main window implements it. Modes sit below
// the application layer, so they see the window only through this interface.
class ClickReceiver {
public:
    virtual ~ClickReceiver() = default;
    // Called after every press and movement; the main window does nothing with it.
    virtual void HandleCollectedDatum() = 0;
};
