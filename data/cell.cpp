#include "data/cell.h"

#include <cassert>
#include <cstring>
#include <utility>

namespace velmora {

namespace {

constexpr unsigned char ownedLead = 0xFF;
static_assert(Cell::longestInPlace < ownedLead);

} // namespace

Cell Cell::inPlace(char* lead, std::size_t size) {
    assert(size <= longestInPlace);
    Cell c;
    if (size != 0) {
        *lead = static_cast<char>(static_cast<unsigned char>(size));
        c.p_ = lead;
    }
    return c;
}

std::string_view Cell::view() const {
    if (p_ == nullptr) {
        return {};
    }
    const auto lead = static_cast<unsigned char>(*p_);
    if (lead != ownedLead) {
        return {p_ + 1, lead};
    }
    std::size_t size;
    std::memcpy(&size, p_ + 1, sizeof size);
    return {p_ + 1 + sizeof size, size};
}

Cell& Cell::operator=(Cell&& other) noexcept {
    std::swap(p_, other.p_);
    return *this;
}

Cell& Cell::operator=(std::string_view text) {
    // The old text goes only after the new is made: text may lie inside it.
    Cell made;
    made.assign(text);
    std::swap(p_, made.p_);
    return *this;
}

void Cell::assign(std::string_view text) {
    assert(p_ == nullptr);
    if (text.empty()) {
        return;
    }
    const std::size_t size = text.size();
    p_ = new char[1 + sizeof size + size];
    p_[0] = static_cast<char>(ownedLead);
    std::memcpy(p_ + 1, &size, sizeof size);
    std::memcpy(p_ + 1 + sizeof size, text.data(), size);
}

void Cell::release() {
    if (p_ != nullptr && static_cast<unsigned char>(*p_) == ownedLead) {
        delete[] p_;
    }
    p_ = nullptr;
}

} // namespace velmora
