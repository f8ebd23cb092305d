#include "foundation/posix/environment_locale.h"

#include <clocale>
#include <langinfo.h>
#include <locale.h>

namespace velmora {

EnvironmentLocale::EnvironmentLocale() : decimal_("."), grouping_(",") {
    locale_t loc = newlocale(LC_NUMERIC_MASK, "", static_cast<locale_t>(nullptr));
    if (loc == static_cast<locale_t>(nullptr)) {
        return; // an unknown locale name: keep the C conventions
    }
    decimal_ = nl_langinfo_l(RADIXCHAR, loc);
    grouping_ = nl_langinfo_l(THOUSEP, loc);
    freelocale(loc);
}

} // namespace velmora
