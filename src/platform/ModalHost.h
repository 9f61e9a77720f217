#pragma once

class ModalDialog;

// Shows dialogs modally: showModal returns once the dialog has closed, and the caller reads
// the dialog's result from its logic object. The editor's host runs the dialog's view; the
// tests' host plays what a test queued for the user to do.
class ModalHost {
public:
    virtual ~ModalHost() = default;
    virtual void showModal(ModalDialog& dialog) = 0;
};
