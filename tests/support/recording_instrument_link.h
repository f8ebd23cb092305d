#pragma once

// An instrument link that only counts what it is asked to do.

#include "device/instrument_link.h"

namespace velmora::test {

class RecordingInstrumentLink final : public InstrumentLink {
public:
    void connectDataToDevice() override { ++connects; }
    void disconnectDataToDevice() override { ++disconnects; }

    int connects = 0;
    int disconnects = 0;
};

} // namespace velmora::test
