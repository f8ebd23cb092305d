#include "app/qt/qt_locale.h"

#include <QLocale>

namespace velmora {

std::string QtSystemLocale::decimalSeparator() const {
    return QLocale::system().decimalPoint().toStdString();
}

} // namespace velmora
