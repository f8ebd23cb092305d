#pragma once

// The container's SQLite store, from its module (see module_loader.h). Without the module, a
// store whose loading fails with the reason, so the application carries on as it does when the
// file cannot be opened.

#include "app/persistent_store.h"

#include <filesystem>
#include <memory>
#include <optional>

namespace velmora::qt {

std::unique_ptr<PersistentStore>
loadSqliteStore(const std::filesystem::path& file,
                const std::optional<std::filesystem::path>& dataModel);

} // namespace velmora::qt
