#include "qt/QtColorChooser.h"

#include "geometry/PackedColor.h"

#include <QColorDialog>

int32_t QtColorChooser::chooseColor() {
    for (int i = 0; i < QColorDialog::customCount(); ++i) {
        QColorDialog::setCustomColor(i, QColor(Qt::black));
    }
    // Black is what a dialog with nothing preselected shows.
    const QColor chosen = QColorDialog::getColor(QColor(Qt::black), parent_);
    if (!chosen.isValid()) {
        return -1;
    }
    return PackedColor::pack(chosen.red(), chosen.green(), chosen.blue());
}
