#pragma once

// The SQLite store as a module of its own, loaded when the container is first used (saving or
// quitting), so that start-up does not load SQLite.

#include "app/persistent_store.h"

#include <filesystem>
#include <optional>

namespace velmora::sqlite_store_module {

inline constexpr const char* name = "velmora_sqlite_store";

// A new SqliteStore(file, dataModel), the caller's to delete.
inline constexpr const char* makeStore = "velmora_makeSqliteStore";
using MakeStore = PersistentStore* (*)(const std::filesystem::path& file,
                                       const std::optional<std::filesystem::path>& dataModel);

} // namespace velmora::sqlite_store_module
