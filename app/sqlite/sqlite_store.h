#pragma once

// The persistent container as one SQLite file in WAL mode. Loading creates the file and its
// folder on first use and brings the file to the data model's latest version (see
// resources/Velmora.sql). A file that is not a store of ours (not a database, damaged, another
// program's) is moved aside untouched and a new store started in its place; one made by a newer
// version of the application is left alone and not opened. Changes are whatever the open
// transaction holds; saving commits it.

#include "app/persistent_store.h"
#include "records/record_store.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

struct sqlite3;

namespace velmora {
class Statement;
}

namespace velmora {

class SqliteStore final : public PersistentStore, public RecordStore {
public:
    // dataModel: the data model resource, nothing when the application has none.
    SqliteStore(std::filesystem::path file, std::optional<std::filesystem::path> dataModel);

    std::optional<std::string> loadPersistentStores() override;
    // Edits go straight into the store: none is ever left to commit.
    bool commitEditing() override { return true; }
    bool hasChanges() const override;
    std::optional<std::string> save() override;
    RecordStore* records() override { return database_ ? this : nullptr; }

    std::optional<std::string> add(StoneRecord& record) override;
    std::optional<std::string> list(std::vector<StoneRecord>& records) const override;
    std::optional<std::string> find(RecordId id, std::optional<StoneRecord>& record) const override;
    std::optional<std::string> update(const StoneRecord& record) override;
    std::optional<std::string> remove(RecordId id) override;

private:
    struct Close {
        void operator()(sqlite3* database) const;
    };

    std::optional<std::string> open();
    // Moves the file and its journal aside; message: where to, or why it could not.
    bool keepAside(const std::string& why, std::string& message);
    std::optional<std::string> migrate(const std::vector<std::string>& steps);
    std::optional<std::string> beginChanges();
    // Runs the statement made by bind as one change; what went wrong, if anything.
    std::optional<std::string> change(const char* sql, const std::function<void(Statement&)>& bind,
                                      const std::string& what);
    std::optional<std::string> failure(const std::string& what) const;

    std::filesystem::path file_;
    std::optional<std::filesystem::path> dataModel_;
    std::unique_ptr<sqlite3, Close> database_;
};

} // namespace velmora
