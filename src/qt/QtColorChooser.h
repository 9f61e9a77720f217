#pragma once

#include "platform/ColorChooser.h"

class QWidget;

// The colour dialog as a QColorDialog, modal to the given parent. Custom colours last for one
// call only: every call starts with all of them black.
class QtColorChooser : public ColorChooser {
public:
    explicit QtColorChooser(QWidget* parent = nullptr) : parent_(parent) {}

    int32_t chooseColor() override;

private:
    QWidget* parent_;
};
