#include "foundation/posix/environment_locale.h"

#include <langinfo.h>
#include <locale.h>

namespace velmora {

FixedLocale environmentLocale() {
    locale_t loc = newlocale(LC_NUMERIC_MASK, "", static_cast<locale_t>(nullptr));
    if (loc == static_cast<locale_t>(nullptr)) {
        return FixedLocale();
    }
    FixedLocale environment(nl_langinfo_l(RADIXCHAR, loc));
    freelocale(loc);
    return environment;
}

} // namespace velmora
