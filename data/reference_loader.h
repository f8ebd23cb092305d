#pragma once

// Loading the reference set at start, with or without a window: find the file, read and decode
// it, parse it, publish the result. A file that cannot be read leaves the lists as they were and
// writes the reason, and a line end, to the given stream; the application goes on with what it has.

#include "data/stone_list.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace velmora {

class Bundle;

inline constexpr const char* referenceResourceName = "AllStoneNew";
inline constexpr const char* referenceResourceType = "csv";

// The largest reference file read: some hundred times the shipped table, and small enough that
// loading it stays within a desktop's memory.
inline constexpr std::size_t referenceFileLimit = std::size_t{64} << 20;

struct ReadText {
    std::optional<std::string> text; // UTF-8
    std::string error;               // a sentence for the user when there is no text
};

// The whole file, decoded (see text_decoding.h); only a regular file of at most
// referenceFileLimit bytes is read.
ReadText readTextFile(const std::filesystem::path& path);

struct ReferenceLoad {
    bool read = false;
    // When the file was read but holds no row at all (it is no reference table), a sentence that
    // says so, for the user; a table whose rows are all left out has none.
    std::string holdsNoStone;

    explicit operator bool() const { return read; }
};

// Reads and parses the file at path (nothing: the bundle has no reference file) and, when that
// works, sets arr_stones and then arr_stonesGlobal to the reference set. When it does not, writes
// the error's description and a line end to out and leaves the lists alone.
ReferenceLoad loadReferenceSet(const std::optional<std::filesystem::path>& path, std::ostream& out,
                               StoneList& arr_stones, StoneList& arr_stonesGlobal);

// The bundle's reference file, if it has one.
std::optional<std::filesystem::path> referenceFilePath(const Bundle& bundle);

} // namespace velmora
