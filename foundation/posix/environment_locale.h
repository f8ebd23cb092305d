#pragma once

// The number conventions of the process environment's LC_NUMERIC (LC_ALL, LC_NUMERIC, LANG).

#include "foundation/locale.h"

namespace velmora {

// Read once, without touching the process-wide C locale; the C conventions when the environment
// names a locale the system does not know.
FixedLocale environmentLocale();

} // namespace velmora
