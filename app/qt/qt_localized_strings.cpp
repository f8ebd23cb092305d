#include "app/qt/qt_localized_strings.h"

#include <QCoreApplication>

namespace velmora::qt {

std::string QtLocalizedStrings::localizedString(const std::string& key) const {
    return QCoreApplication::translate(context_, key.c_str()).toStdString();
}

} // namespace velmora::qt
