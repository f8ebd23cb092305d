#include "app/sqlite/sqlite_store_module.h"

#include "app/sqlite/sqlite_store.h"

#include <type_traits>

extern "C" __attribute__((visibility("default"))) velmora::PersistentStore*
velmora_makeSqliteStore(const std::filesystem::path& file,
                        const std::optional<std::filesystem::path>& dataModel) {
    return new velmora::SqliteStore(file, dataModel);
}

// The application calls it through this type.
static_assert(
    std::is_same_v<decltype(&velmora_makeSqliteStore), velmora::sqlite_store_module::MakeStore>);
