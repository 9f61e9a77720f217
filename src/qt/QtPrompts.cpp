#include "qt/QtPrompts.h"

#include <QInputDialog>
#include <QMessageBox>

MessageAnswer QtPrompts::messageBox(const std::string& text, const std::string& title,
                                    MessageIcon icon, MessageButtons buttons) {
    QMessageBox box(parent_);
    box.setWindowTitle(QString::fromStdString(title));
    box.setText(QString::fromStdString(text));
    switch (icon) {
    case MessageIcon::None:
        break;
    case MessageIcon::Critical:
        box.setIcon(QMessageBox::Critical);
        break;
    case MessageIcon::Exclamation:
        box.setIcon(QMessageBox::Warning);
        break;
    case MessageIcon::Information:
        box.setIcon(QMessageBox::Information);
        break;
    }
    if (buttons == MessageButtons::SaveDiscardCancel) {
        box.setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
        box.setDefaultButton(QMessageBox::Save);
        box.setEscapeButton(QMessageBox::Cancel);
        const int chosen = box.exec();
        return chosen == QMessageBox::Save      ? MessageAnswer::Save
               : chosen == QMessageBox::Discard ? MessageAnswer::Discard
                                                : MessageAnswer::Cancel;
    }
    if (buttons != MessageButtons::Ok) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(buttons == MessageButtons::YesNoDefaultNo ? QMessageBox::No
                                                                       : QMessageBox::Yes);
        return box.exec() == QMessageBox::Yes ? MessageAnswer::Yes : MessageAnswer::No;
    }
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
    return MessageAnswer::Ok;
}

std::optional<std::string> QtPrompts::inputBox(const std::string& prompt, const std::string& title,
                                               const std::string& defaultText) {
    bool ok = false;
    const QString text = QInputDialog::getText(parent_, QString::fromStdString(title),
                                               QString::fromStdString(prompt), QLineEdit::Normal,
                                               QString::fromStdString(defaultText), &ok);
    if (!ok) {
        return std::nullopt;
    }
    return text.toStdString();
}
