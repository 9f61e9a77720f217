#include "support/ScriptedModalHost.h"

#include <stdexcept>

void ScriptedModalHost::showModal(ModalDialog& dialog) {
    // As in the editor: a dialog that closed while it was set up is not shown.
    if (dialog.isClosed()) {
        return;
    }
    shown_.push_back(dialog.caption());
    for (const Step& step : scripts_.take({})) {
        if (dialog.isClosed()) {
            throw std::logic_error(dialog.caption() + " closed before the script ended");
        }
        step(dialog);
    }
    if (!dialog.isClosed()) {
        throw std::logic_error(dialog.caption() + " is still open when the script ends");
    }
}
