#include "qt/QtFileChooser.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QStringList>
#include <string_view>

namespace {

// "description|pattern|description|pattern" as Qt's name filters "description (pattern)".
// Descriptions that already end in their pattern, as "Tavrin Mesh File(*.tvm)" does, are
// kept as they are; Qt reads the patterns from the last parentheses.
QStringList nameFilters(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString& description = parts[i];
        QString patterns = parts[i + 1];
        if (description.endsWith('(' + patterns + ')')) {
            filters << description;
        } else {
            filters << description + " (" + patterns.replace(';', ' ') + ')';
        }
    }
    return filters;
}

// "Save File", and "Save File As".
constexpr std::string_view saveTitle = "Save File";

} // namespace

std::string QtFileChooser::chooseFile(const std::string& title, const std::string& filter) {
    QFileDialog dialog(parent_, QString::fromStdString(title),
                       QCoreApplication::applicationDirPath());
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    // The program opens and saves through the one dialog and tells the two apart only by
    // the title it gives; a save shows the desktop's save dialog, whose button says Save.
    if (title.starts_with(saveTitle)) {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
    }
    const QStringList filters = nameFilters(filter);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return "";
    }
    return dialog.selectedFiles().constFirst().toStdString();
}
