#pragma once

#include "platform/ModalHost.h"

#include <QDialog>
#include <functional>
#include <map>
#include <memory>
#include <typeindex>

class QWidget;

// Shows a dialog's logic through its Qt view, modally over the active window. Each kind of
// dialog logic is registered with the view that shows it.
class QtModalHost : public ModalHost {
public:
    // View is a QDialog constructed from (Form&, QWidget* parent) that closes itself when the
    // logic is closed.
    template <class Form, class View> void registerView() {
        factories_[std::type_index(typeid(Form))] = [](ModalDialog& dialog, QWidget* parent) {
            return std::unique_ptr<QDialog>(new View(static_cast<Form&>(dialog), parent));
        };
    }

    // Throws std::logic_error for a dialog without a registered view.
    void showModal(ModalDialog& dialog) override;

private:
    using Factory = std::function<std::unique_ptr<QDialog>(ModalDialog&, QWidget*)>;
    std::map<std::type_index, Factory> factories_;
};
