#pragma once

// What the Records view needs beyond the window: the store, the questions it puts to the user
// (a label, a file to write) and the report's output. The application gives its real ones; the
// tests give fakes.

#include "records/record_store.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>

namespace velmora {

class RecordsDialogs {
public:
    virtual ~RecordsDialogs() = default;
    // The label for a new record (the client's or lot number); nothing when the user cancels.
    virtual std::optional<std::string> askLabel() = 0;
    // Where to write; nothing when the user cancels. suggestedName: "records.csv", ...
    virtual std::optional<std::filesystem::path>
    chooseSaveFile(const std::string& title, const std::string& suggestedName) = 0;
};

class ReportOutput {
public:
    virtual ~ReportOutput() = default;
    // One page a record. What went wrong, if anything.
    virtual std::optional<std::string> writePdf(std::span<const StoneRecord> records,
                                                const std::filesystem::path& file) = 0;
    // Through the system's print dialog; the user cancelling it is no failure.
    virtual std::optional<std::string> print(std::span<const StoneRecord> records) = 0;
};

struct RecordsServices {
    // The store, opened on first use; nothing when it cannot be opened.
    std::function<RecordStore*()> store;
    RecordsDialogs* dialogs = nullptr;
    ReportOutput* report = nullptr;
};

} // namespace velmora
