#pragma once

// Where the simulated instrument's readings come from: one R.I. in thousandths per request.

#include <cstdint>

namespace velmora::sim {

class ReadingSource {
public:
    virtual ~ReadingSource() = default;
    virtual std::uint16_t next() = 0;
};

} // namespace velmora::sim
