#pragma once

#include <QString>
#include <string>

// A caption of the core shown with a keyboard access key: the view picks the letter so
// that the keys of one dialog differ. A letter the caption lacks leaves it without a key.
inline QString withAccessKey(const std::string& caption, char key) {
    QString text = QString::fromStdString(caption);
    const qsizetype at = text.indexOf(QChar(key));
    if (at >= 0) {
        text.insert(at, QChar('&'));
    }
    return text;
}
