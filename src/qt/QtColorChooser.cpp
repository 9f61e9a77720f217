#include "qt/QtColorChooser.h"

#include "geometry/PackedColor.h"

#include <QColorDialog>

int32_t QtColorChooser::chooseColor(int32_t initial) {
    for (int i = 0; i < QColorDialog::customCount(); ++i) {
        QColorDialog::setCustomColor(i, QColor(Qt::black));
    }
    const PackedColor channels = PackedColor::split(initial);
    const QColor start(channels.red, channels.green, channels.blue);
    const QColor chosen = QColorDialog::getColor(start, parent_);
    if (!chosen.isValid()) {
        return -1;
    }
    return PackedColor::pack(chosen.red(), chosen.green(), chosen.blue());
}
