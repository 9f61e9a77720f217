#pragma once

#include <QDialog>
#include <functional>
#include <string>

class ModalDialog;
class QDialogButtonBox;
struct ButtonState;

// The common ground of the views of dialog logic (ModalDialog): every user action goes in
// through the event guard, the view shows the logic's state again after it, and closes
// once the logic has closed. Escape and the window's close button act as the dialog's
// cancel command.
class ModalDialogView : public QDialog {
    Q_OBJECT
public:
    void reject() override;

protected:
    ModalDialogView(ModalDialog& form, std::string cancelName, QWidget* parent);

    // Runs a user action on the logic, then closes the view or shows the new state.
    void act(const std::function<void()>& action);
    // Shows the logic's state after an action.
    virtual void refresh() = 0;
    // The dialog's closing commands as buttons: the accepting one is the default button
    // (Enter), the cancelling one is the command Escape runs.
    QDialogButtonBox* commandButtons(const ButtonState& accept, const std::string& acceptName,
                                     const ButtonState& cancel);

private:
    ModalDialog& form_;
    std::string cancelName_;
};
