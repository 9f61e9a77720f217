#include "qt/QtColorChooser.h"

#include <QColorDialog>

int32_t QtColorChooser::chooseColor(int32_t initial) {
    for (int i = 0; i < QColorDialog::customCount(); ++i) {
        QColorDialog::setCustomColor(i, QColor(Qt::black));
    }
    const QColor start(initial & 0xFF, (initial >> 8) & 0xFF, (initial >> 16) & 0xFF);
    const QColor chosen = QColorDialog::getColor(start, parent_);
    if (!chosen.isValid()) {
        return -1;
    }
    return chosen.red() + 256 * chosen.green() + 65536 * chosen.blue();
}
