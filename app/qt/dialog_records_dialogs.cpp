#include "app/qt/dialog_records_dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QInputDialog>

namespace velmora::qt {

std::optional<std::string> DialogRecordsDialogs::askLabel() {
    bool accepted = false;
    const QString label = QInputDialog::getText(
        parent_, QStringLiteral("Save record"),
        QStringLiteral("Label (the client's or lot number):"), QLineEdit::Normal, {}, &accepted);
    if (!accepted) {
        return std::nullopt;
    }
    return label.trimmed().toStdString();
}

std::optional<std::filesystem::path>
DialogRecordsDialogs::chooseSaveFile(const std::string& title, const std::string& suggestedName) {
    const QString suggested = QString::fromStdString(suggestedName);
    const QString suffix = suggested.section('.', -1);
    const QString file = QFileDialog::getSaveFileName(
        parent_, QString::fromStdString(title), QDir::home().filePath(suggested),
        QStringLiteral("%1 (*.%2)").arg(suffix.toUpper(), suffix));
    if (file.isEmpty()) {
        return std::nullopt;
    }
    return std::filesystem::path(file.toStdU16String());
}

} // namespace velmora::qt
