#pragma once

// The Records view's dialogs and report output, answered from a script and recorded.

#include "ui/records_services.h"

#include <algorithm>
#include <deque>

namespace velmora::test {

class ScriptedRecordsDialogs final : public RecordsDialogs {
public:
    std::optional<std::string> askLabel() override { return next(labels); }
    std::optional<std::filesystem::path> chooseSaveFile(const std::string&,
                                                        const std::string&) override {
        return next(files);
    }

    std::deque<std::optional<std::string>> labels; // nothing: cancelled
    std::deque<std::optional<std::filesystem::path>> files;

private:
    template <class T> static std::optional<T> next(std::deque<std::optional<T>>& script) {
        if (script.empty()) {
            return std::nullopt;
        }
        auto answer = script.front();
        script.pop_front();
        return answer;
    }
};

class RecordingReportOutput final : public ReportOutput {
public:
    std::optional<std::string> writePdf(std::span<const StoneRecord> records,
                                        const std::filesystem::path& file) override {
        written.emplace_back(labels(records), file);
        return error;
    }
    std::optional<std::string> print(std::span<const StoneRecord> records) override {
        printed.push_back(labels(records));
        return error;
    }

    std::optional<std::string> error;
    std::vector<std::pair<std::vector<std::string>, std::filesystem::path>> written;
    std::vector<std::vector<std::string>> printed;

private:
    static std::vector<std::string> labels(std::span<const StoneRecord> records) {
        std::vector<std::string> texts(records.size());
        std::ranges::transform(records, texts.begin(), &StoneRecord::label);
        return texts;
    }
};

} // namespace velmora::test
