#include "qt/QtFileChooser.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QStringList>
#include <string_view>
#include <utility>

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

// The dialogs that save: "Save File", "Save File As", and the mesh and image exports.
bool savesTo(const std::string& title) {
    return title.starts_with(std::string_view("Save File")) || title == "Export Mesh" ||
           title == "Export Image";
}

// A saved name without an extension takes that of the chosen filter when the filter has one
// pattern "*.ext", so that the filter picks the format.
QString withFilterExtension(const QString& path, const QString& nameFilter) {
    const qsizetype open = nameFilter.lastIndexOf('(');
    const QString pattern = nameFilter.mid(open + 1).chopped(1);
    if (open < 0 || !pattern.startsWith("*.") || pattern.contains(' ') ||
        !QFileInfo(path).suffix().isEmpty()) {
        return path;
    }
    return path + pattern.mid(1);
}

} // namespace

std::string QtFileChooser::chooseFile(const std::string& title, const std::string& filter) {
    if (!next_.empty()) {
        return std::exchange(next_, {});
    }
    QFileDialog dialog(parent_, QString::fromStdString(title),
                       QCoreApplication::applicationDirPath());
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    // The program opens and saves through the one dialog and tells the two apart only by
    // the title it gives; a save shows the desktop's save dialog, whose button says Save.
    const bool saving = savesTo(title);
    if (saving) {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
    }
    const QStringList filters = nameFilters(filter);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return "";
    }
    const QString chosen = dialog.selectedFiles().constFirst();
    return (saving ? withFilterExtension(chosen, dialog.selectedNameFilter()) : chosen)
        .toStdString();
}
