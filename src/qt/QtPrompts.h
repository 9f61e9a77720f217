#pragma once

#include "platform/Prompts.h"

class QWidget;

// Message boxes and input boxes as Qt dialogs, modal to the given parent window.
class QtPrompts : public Prompts {
public:
    explicit QtPrompts(QWidget* parent = nullptr) : parent_(parent) {}
    void setParent(QWidget* parent) { parent_ = parent; }

    MessageAnswer messageBox(const std::string& text, const std::string& title, MessageIcon icon,
                             MessageButtons buttons) override;
    std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                        const std::string& defaultText) override;

private:
    QWidget* parent_;
};
