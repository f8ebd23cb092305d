#pragma once

// The persistent container as one SQLite file. Loading creates the file and its folder on first
// use and applies the data model (SQL statements that may be run again and again). Changes are
// whatever a transaction holds that is not yet committed; saving commits it.

#include "app/persistent_store.h"

#include <filesystem>
#include <memory>
#include <optional>

struct sqlite3;

namespace velmora {

class SqliteStore final : public PersistentStore {
public:
    // dataModel: the data model resource, nothing when the application has none.
    SqliteStore(std::filesystem::path file, std::optional<std::filesystem::path> dataModel);

    std::optional<std::string> loadPersistentStores() override;
    // Edits go straight into the store: none is ever left to commit.
    bool commitEditing() override { return true; }
    bool hasChanges() const override;
    std::optional<std::string> save() override;

private:
    struct Close {
        void operator()(sqlite3* database) const;
    };

    std::optional<std::string> failure(const std::string& what) const;

    std::filesystem::path file_;
    std::optional<std::filesystem::path> dataModel_;
    std::unique_ptr<sqlite3, Close> database_;
};

} // namespace velmora
