#include "qt/QtModalHost.h"

#include "platform/ModalDialog.h"

#include <QApplication>
#include <stdexcept>

void QtModalHost::showModal(ModalDialog& dialog) {
    // A dialog that ended while it was being set up (its initialize refused) is not shown.
    if (dialog.isClosed()) {
        return;
    }
    const auto factory = factories_.find(std::type_index(typeid(dialog)));
    if (factory == factories_.end()) {
        throw std::logic_error("no window shows the dialog " + dialog.caption());
    }
    const std::unique_ptr<QDialog> view = factory->second(dialog, QApplication::activeWindow());
    view->exec();
}
