#pragma once

// One reference stone: the 28 text cells of a row of the reference file, in column order. Numbers
// stay text until the search or the detail panel parses them.

#include <array>
#include <cstddef>
#include <string>

namespace velmora {

struct Stones {
    std::string StoneID;
    std::string StoneName;
    std::string SgAverage;
    std::string SgMin;
    std::string SgMax;
    std::string SgRange;
    std::string Ri;
    std::string RiMin;
    std::string RiMax;
    std::string Hardness;
    std::string HMin;
    std::string Hmax;
    std::string StonenameUSB;
    std::string SgAverageUSB;
    std::string Birefringence;
    std::string StoneFamily;
    std::string NEW;
    std::string BirefMin;
    std::string BirefMax;
    std::string Description1;
    std::string Description2;
    std::string Description3;
    std::string Color1;
    std::string Color2;
    std::string Color3;
    std::string Color4;
    std::string Color5;
    std::string Color6;

    static constexpr std::size_t fieldCount = 28;

    // Field i is column i of the reference file.
    std::string& field(std::size_t i) { return this->*members[i]; }
    const std::string& field(std::size_t i) const { return this->*members[i]; }
    // The column of a field: the inverse of field().
    static consteval std::size_t columnOf(std::string Stones::*member);

    bool operator==(const Stones&) const = default;

private:
    static constexpr std::array<std::string Stones::*, fieldCount> members = {
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

consteval std::size_t Stones::columnOf(std::string Stones::*member) {
    std::size_t i = 0;
    while (members[i] != member) {
        ++i;
    }
    return i;
}

} // namespace velmora
