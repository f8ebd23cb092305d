#pragma once

// A view the user works: it can be disabled, and the interface file gives it a tag that its
// action reads to tell the senders apart.

#include "ui/view.h"

namespace velmora {

class Control : public View {
public:
    bool isEnabled() const { return enabled_; }
    void setEnabled(bool enabled) { update(enabled_, enabled, Property::Enabled); }

    int tag() const { return tag_; }
    void setTag(int tag) { update(tag_, tag, Property::Tag); }

private:
    bool enabled_ = true;
    int tag_ = 0;
};

} // namespace velmora
