#pragma once

// A persistent container in memory that can be told to fail: to load, to take the edits in
// progress, to save; and its records, which can be told to fail each kind of change. A change
// leaves the container with unsaved changes, as the real store's open transaction does.

#include "app/persistent_store.h"
#include "records/record_store.h"

#include <algorithm>

namespace velmora::test {

// Its records; told to refuse, they refuse every change with that error.
class MemoryRecords final : public RecordStore {
public:
    explicit MemoryRecords(bool& changed) : changed_(changed) {}

    std::optional<std::string> add(StoneRecord& record) override {
        return change([&] {
            record.id = ++lastId_;
            kept.insert(kept.begin(), record);
        });
    }
    std::optional<std::string> list(std::vector<StoneRecord>& records) const override {
        records = kept;
        return std::nullopt;
    }
    std::optional<std::string> find(RecordId id,
                                    std::optional<StoneRecord>& record) const override {
        const auto found = std::ranges::find(kept, id, &StoneRecord::id);
        record = found == kept.end() ? std::nullopt : std::optional(*found);
        return std::nullopt;
    }
    std::optional<std::string> update(const StoneRecord& record) override {
        return change([&] {
            for (StoneRecord& r : kept) {
                if (r.id == record.id) {
                    r.notes = record.notes;
                    r.conclusion = record.conclusion;
                }
            }
        });
    }
    std::optional<std::string> remove(RecordId id) override {
        return change(
            [&] { std::erase_if(kept, [id](const StoneRecord& r) { return r.id == id; }); });
    }

    std::optional<std::string> refusal;
    std::vector<StoneRecord> kept; // newest first

private:
    template <class Change> std::optional<std::string> change(Change apply) {
        if (!refusal) {
            apply();
            changed_ = true;
        }
        return refusal;
    }

    bool& changed_;
    RecordId lastId_ = 0;
};

struct MemoryStoreSetup {
    std::optional<std::string> loadError = std::nullopt;
    bool refusesCommit = false;
    bool hasChanges = false;
    std::optional<std::string> saveError = std::nullopt;
    // A store that failed to load has no records.
    bool opens = true;
};

class MemoryStore final : public PersistentStore {
    // First: the records tell their changes through it.
    MemoryStoreSetup setup_;

public:
    explicit MemoryStore(MemoryStoreSetup setup = {})
        : setup_(std::move(setup)), recordsKept(setup_.hasChanges) {}

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
    RecordStore* records() override { return loads > 0 && setup_.opens ? &recordsKept : nullptr; }

    int loads = 0;
    int saves = 0;
    MemoryRecords recordsKept;
};

} // namespace velmora::test
