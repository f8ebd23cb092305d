#pragma once

// Where the records are kept. Changes wait in the store until the container saves them, all of
// them at once: a save writes everything since the last one or nothing.

#include "records/stone_record.h"

#include <optional>
#include <string>
#include <vector>

namespace velmora {

class RecordStore {
public:
    virtual ~RecordStore() = default;
    // Adds the record and gives it its id. What went wrong, if anything.
    virtual std::optional<std::string> add(StoneRecord& record) = 0;
    // Every record, newest first (the latest examined; of equal times, the latest added).
    virtual std::optional<std::string> list(std::vector<StoneRecord>& records) const = 0;
    // The record with this id, or nothing when there is none.
    virtual std::optional<std::string> find(RecordId id,
                                            std::optional<StoneRecord>& record) const = 0;
    // Writes the record's notes and conclusion, the only parts of a record that are edited: the
    // readings and the candidates stay as they were taken.
    virtual std::optional<std::string> update(const StoneRecord& record) = 0;
    // Removes the record, whole; the caller has had it confirmed.
    virtual std::optional<std::string> remove(RecordId id) = 0;
};

} // namespace velmora
