#pragma once

// Readings as the instrument sends them, ten a second on a virtual clock, written in thousandths.

#include <chrono>
#include <vector>

namespace velmora::test {

using Thousandths = std::vector<int>;

inline Thousandths hold(int reading, int count) {
    return Thousandths(static_cast<std::size_t>(count), reading);
}

inline Thousandths operator+(Thousandths a, const Thousandths& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// A stone placed on the prism: its edge comes in from below and settles on the reading.
inline Thousandths settleOn(int reading) {
    return Thousandths{reading - 40, reading - 20, reading - 9, reading - 4, reading - 1} +
           hold(reading, 15);
}

class ReadingStream {
public:
    template <class Model> void play(Model& model, const Thousandths& readings) {
        for (const int reading : readings) {
            model.add(now, reading / 1000.0);
            now += std::chrono::milliseconds(100);
        }
    }

    std::chrono::milliseconds now{0};
};

} // namespace velmora::test
