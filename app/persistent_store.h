#pragma once

// The application's persistent container: a store that is opened on first use, tells whether it
// holds changes not yet written, and writes them. It keeps the stone records, so that quitting
// never loses one.

#include "records/record_store.h"

#include <optional>
#include <string>

namespace velmora {

class PersistentStore {
public:
    virtual ~PersistentStore() = default;
    // Opens the store, creating it if need be. What went wrong, if anything.
    virtual std::optional<std::string> loadPersistentStores() = 0;
    // Hands edits still in progress to the store; false when they cannot be.
    virtual bool commitEditing() = 0;
    virtual bool hasChanges() const = 0;
    // Writes the changes. What went wrong, if anything.
    virtual std::optional<std::string> save() = 0;
    // The records it keeps; nothing while it is not open.
    virtual RecordStore* records() { return nullptr; }
};

} // namespace velmora
