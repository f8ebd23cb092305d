#pragma once

// The application's persistent container: a store that is opened on first use, tells whether it
// holds changes not yet written, and writes them. Nothing is stored in it yet; it is kept so that
// a later version can, and so that quitting never loses what it would hold.

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
};

} // namespace velmora
