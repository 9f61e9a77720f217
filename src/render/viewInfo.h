#pragma once

#include "render/ViewSpecs.h"

// Carries one view record by value between the main window and the mouse modes.
class viewInfo {
public:
    void setSpecs(const ViewSpecs& specs) { specs_ = specs; }
    ViewSpecs getSpecs() const { return specs_; }

private:
    ViewSpecs specs_;
};
