#pragma once

// Building reference-file text in tests: a row of 28 cells from the few that matter, and a
// whole file's text.

#include <map>
#include <string>
#include <vector>

namespace velmora::test {

inline constexpr const char* referenceHeader =
    "StoneID,StoneName,SgAverage,SgMin,SgMax,SgRange,Ri,RiMin,RiMax,Hardness,HMin,Hmax,"
    "StonenameUSB,SgAverageUSB,Birefringence,StoneFamily,NEW,BirefMin,BirefMax,Description1,"
    "Description2,Description3,Color1,Color2,Color3,Color4,Color5,Color6";

// Cells by column index; the rest are empty, except NEW (16) which is "1" unless given.
inline std::string row(std::map<int, std::string> cells) {
    cells.try_emplace(16, "1");
    std::string line = cells[0];
    for (int i = 1; i < 28; ++i) {
        line += ',' + cells[i];
    }
    return line;
}

// A row with the usual cells of a stone.
inline std::string stoneRow(const std::string& id, const std::string& name,
                            const std::string& ri = "", const std::string& sg = "",
                            const std::string& hardness = "", const std::string& color1 = "") {
    return row({{0, id}, {1, name}, {5, sg}, {6, ri}, {9, hardness}, {22, color1}});
}

// A row with what the ranking reads besides: birefringence and family.
inline std::string gemRow(const std::string& id, const std::string& name, const std::string& ri,
                          const std::string& sg, const std::string& hardness,
                          const std::string& birefringence, const std::string& family,
                          const std::string& color1) {
    return row({{0, id},
                {1, name},
                {5, sg},
                {6, ri},
                {9, hardness},
                {14, birefringence},
                {15, family},
                {22, color1}});
}

// The header line, then the given rows.
inline std::string referenceText(const std::vector<std::string>& rows) {
    std::string text = referenceHeader;
    for (const auto& r : rows) {
        text += "\r\n" + r;
    }
    return text;
}

} // namespace velmora::test
