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

    bool operator==(const Stones&) const = default;

    // In the reference set when the inclusion flag is exactly "1".
    bool isIncluded() const { return NEW == "1"; }

private:
    static const std::array<std::string Stones::*, fieldCount> members;
};

} // namespace velmora
