#pragma once

// A persistent container in memory that can be told to fail: to load, to take the edits in
// progress, to save.

#include "app/persistent_store.h"

namespace velmora::test {

struct MemoryStoreSetup {
    std::optional<std::string> loadError = std::nullopt;
    bool refusesCommit = false;
    bool hasChanges = false;
    std::optional<std::string> saveError = std::nullopt;
};

class MemoryStore final : public PersistentStore {
public:
    explicit MemoryStore(MemoryStoreSetup setup = {}) : setup_(std::move(setup)) {}

    std::optional<std::string> loadPersistentStores() override {
        ++loads;
        return setup_.loadError;
    }
    bool commitEditing() override { return !setup_.refusesCommit; }
    bool hasChanges() const override { return setup_.hasChanges; }
    std::optional<std::string> save() override {
        if (setup_.saveError) {
            return setup_.saveError;
        }
        setup_.hasChanges = false;
        ++saves;
        return std::nullopt;
    }

    int loads = 0;
    int saves = 0;

private:
    MemoryStoreSetup setup_;
};

} // namespace velmora::test
