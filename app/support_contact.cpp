#include "app/support_contact.h"

namespace velmora {

SupportContact makerSupport() {
    return {VELMORA_WEBSITE_URL, VELMORA_SUPPORT_EMAIL};
}

} // namespace velmora
