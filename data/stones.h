#pragma once

// One reference stone: the 28 text cells of a row of the reference file, in column order. Numbers
// stay text until the search or the detail panel parses them.

#include "data/cell.h"

#include <array>
#include <cstddef>

namespace velmora {

struct Stones {
    Cell StoneID;
    Cell StoneName;
    Cell SgAverage;
    Cell SgMin;
    Cell SgMax;
    Cell SgRange;
    Cell Ri;
    Cell RiMin;
    Cell RiMax;
    Cell Hardness;
    Cell HMin;
    Cell Hmax;
    Cell StonenameUSB;
    Cell SgAverageUSB;
    Cell Birefringence;
    Cell StoneFamily;
    Cell NEW;
    Cell BirefMin;
    Cell BirefMax;
    Cell Description1;
    Cell Description2;
    Cell Description3;
    Cell Color1;
    Cell Color2;
    Cell Color3;
    Cell Color4;
    Cell Color5;
    Cell Color6;

    static constexpr std::size_t fieldCount = 28;

    // Field i is column i of the reference file.
    Cell& field(std::size_t i) { return this->*members[i]; }
    const Cell& field(std::size_t i) const { return this->*members[i]; }
    // The column of a field: the inverse of field().
    static consteval std::size_t columnOf(Cell Stones::*member);

    bool operator==(const Stones&) const = default;

private:
    static constexpr std::array<Cell Stones::*, fieldCount> members = {
        &Stones::StoneID,      &Stones::StoneName,    &Stones::SgAverage,
        &Stones::SgMin,        &Stones::SgMax,        &Stones::SgRange,
        &Stones::Ri,           &Stones::RiMin,        &Stones::RiMax,
        &Stones::Hardness,     &Stones::HMin,         &Stones::Hmax,
        &Stones::StonenameUSB, &Stones::SgAverageUSB, &Stones::Birefringence,
        &Stones::StoneFamily,  &Stones::NEW,          &Stones::BirefMin,
        &Stones::BirefMax,     &Stones::Description1, &Stones::Description2,
        &Stones::Description3, &Stones::Color1,       &Stones::Color2,
        &Stones::Color3,       &Stones::Color4,       &Stones::Color5,
        &Stones::Color6,
    };
};

consteval std::size_t Stones::columnOf(Cell Stones::*member) {
    std::size_t i = 0;
    while (members[i] != member) {
        ++i;
    }
    return i;
}

} // namespace velmora
