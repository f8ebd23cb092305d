#pragma once

// Loading the reference set at start, with or without a window: find the file, read and decode
// it, parse it, publish the result. A file that cannot be read leaves the lists as they were and
// writes the reason, and a line end, to the given stream; the application goes on with what it has.

#include "data/stone_list.h"

#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace velmora {

class Bundle;

inline constexpr const char* referenceResourceName = "AllStoneNew";
inline constexpr const char* referenceResourceType = "csv";

struct ReadText {
    std::optional<std::string> text; // UTF-8
    std::string error;               // a sentence for the user when there is no text
};

// The whole file, decoded (see text_decoding.h).
ReadText readTextFile(const std::filesystem::path& path);

// Reads and parses the file at path (nothing: the bundle has no reference file) and, when that
// works, sets arr_stones and then arr_stonesGlobal to the reference set. Returns false and writes
// the error's description and a line end to out when it does not.
bool loadReferenceSet(const std::optional<std::filesystem::path>& path, std::ostream& out,
                      StoneList& arr_stones, StoneList& arr_stonesGlobal);

// The bundle's reference file, if it has one.
std::optional<std::filesystem::path> referenceFilePath(const Bundle& bundle);

} // namespace velmora
