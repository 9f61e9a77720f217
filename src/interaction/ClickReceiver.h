#pragma once

#include "interaction/ProfileReceiver.h"
#include "interaction/SelectionReceiver.h"

// The window that mouse modes call back, with every role a mode may need. The main window
// implements it; modes sit below the application layer and see the window only this way.
class ClickReceiver : public SelectionReceiver, public ProfileReceiver {};
