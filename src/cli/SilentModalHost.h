#pragma once

#include "platform/ModalHost.h"

// Shows no dialog: the tool sets a dialog's controls itself, so a dialog that one would open
// (the extrusion's transformation picker) returns at once, as if cancelled.
class SilentModalHost : public ModalHost {
public:
    void showModal(ModalDialog&) override {}
};
