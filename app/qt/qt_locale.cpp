#include "app/qt/qt_locale.h"

#include <QLocale>

namespace velmora {

std::string QtSystemLocale::decimalSeparator() const {
    return QLocale::system().decimalPoint().toStdString();
}

std::string QtSystemLocale::groupingSeparator() const {
    return QLocale::system().groupSeparator().toStdString();
}

} // namespace velmora
