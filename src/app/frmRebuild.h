#pragma once

#include "platform/Controls.h"

#include <string>

// The notice shown while the scene tree is rebuilt. It has nothing to decide; the Qt view
// (qt/frmRebuildView) shows it and paints it at once, before the rebuild blocks the loop.
class frmRebuild {
public:
    LabelState Label1{"The Tree View is currently being Rebuilt. Please be patient as this "
                      "process may take time."};

    std::string caption() const { return "Rebulding"; }
};
