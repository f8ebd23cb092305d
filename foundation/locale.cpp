#include "foundation/locale.h"

#include <clocale>
#include <langinfo.h>
#include <locale.h>

namespace velmora {

EnvironmentLocale::EnvironmentLocale() : decimal_(".") {
    locale_t loc = newlocale(LC_NUMERIC_MASK, "", static_cast<locale_t>(nullptr));
    if (loc == static_cast<locale_t>(nullptr)) {
        return; // an unknown locale name: keep the C conventions
    }
    decimal_ = nl_langinfo_l(RADIXCHAR, loc);
    freelocale(loc);
}

} // namespace velmora
