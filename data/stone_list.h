#pragma once

// An ordered list of stones with value semantics. Lists are replaced whole, never edited in place,
// so copies share one immutable vector: publishing the reference set twice, or starting a search
// from the whole table, costs nothing however large the table is.

#include "data/stones.h"

#include <memory>
#include <vector>

namespace velmora {

class StoneList {
public:
    StoneList() = default;
    StoneList(std::vector<Stones> stones)
        : stones_(std::make_shared<const std::vector<Stones>>(std::move(stones))) {}
    // Stones whose cells lie in a text that the pointer's owner keeps alive with them.
    explicit StoneList(std::shared_ptr<const std::vector<Stones>> stones)
        : stones_(std::move(stones)) {}

    std::size_t size() const { return stones_ ? stones_->size() : 0; }
    bool empty() const { return size() == 0; }
    const Stones& operator[](std::size_t i) const { return (*stones_)[i]; }
    const Stones& front() const { return stones_->front(); }
    const Stones* begin() const { return stones_ ? stones_->data() : nullptr; }
    const Stones* end() const { return stones_ ? stones_->data() + stones_->size() : nullptr; }

    bool operator==(const StoneList& other) const {
        return stones_ == other.stones_ || std::equal(begin(), end(), other.begin(), other.end());
    }

private:
    std::shared_ptr<const std::vector<Stones>> stones_;
};

} // namespace velmora
