#pragma once

#include "app/frmTolvane.h"
#include "qt/frmTolvaneView.h"
#include "support/QtInput.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"

// The main window's logic and its Qt view, shown at 1000 x 700, with scripted prompts and
// dialogs.
struct ShownWindow {
    ScriptedPrompts prompts;
    ScriptedModalHost dialogs;
    frmTolvane form{dialogs};
    frmTolvaneView window{form};

    ShownWindow() {
        window.resize(1000, 700);
        showNow(window);
    }
};
