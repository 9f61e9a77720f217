#include "qt/SurfaceWidgets.h"

#include "geometry/PackedColor.h"

#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>

QLabel* newSwatch(const char* name, QWidget* parent) {
    auto* swatch = new QLabel(parent);
    swatch->setObjectName(name);
    swatch->setFrameStyle(QFrame::Box | QFrame::Plain);
    swatch->setMinimumSize(48, 22);
    swatch->setAutoFillBackground(true);
    return swatch;
}

void showSwatch(QLabel& swatch, const SwatchState& state) {
    const PackedColor channels = PackedColor::split(state.BackColor);
    QPalette palette = swatch.palette();
    // The colour shows also while the swatch is disabled.
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        palette.setColor(group, QPalette::Window,
                         QColor(channels.red, channels.green, channels.blue));
    }
    swatch.setPalette(palette);
    swatch.setEnabled(state.Enabled);
}

QScrollBar* newScrollBar(const char* name, const ScrollBarState& state, QWidget* parent) {
    auto* bar = new QScrollBar(Qt::Horizontal, parent);
    bar->setObjectName(name);
    bar->setRange(state.Min, state.Max);
    bar->setSingleStep(state.SmallChange);
    bar->setPageStep(state.LargeChange);
    bar->setMinimumWidth(160);
    bar->setFocusPolicy(Qt::StrongFocus);
    return bar;
}

void showScrollBar(QScrollBar& bar, const ScrollBarState& state) {
    const QSignalBlocker blocker(&bar);
    bar.setValue(state.Value);
    bar.setEnabled(state.Enabled);
}
