#pragma once

#include "platform/Controls.h"

class QLabel;
class QScrollBar;
class QWidget;

// The widgets of the surface dialogs: a colour swatch and a specular scroll bar, made from
// and showing the logic's control state.
QLabel* newSwatch(const char* name, QWidget* parent);
void showSwatch(QLabel& swatch, const SwatchState& state);
QScrollBar* newScrollBar(const char* name, const ScrollBarState& state, QWidget* parent);
// Shows the value without telling the logic again: showing is no user action.
void showScrollBar(QScrollBar& bar, const ScrollBarState& state);
