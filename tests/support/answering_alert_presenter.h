#pragma once

// Records every alert and answers each with the next scripted button, then with the default one.

#include "tests/support/recording_alert_presenter.h"

#include <deque>

namespace velmora::test {

class AnsweringAlertPresenter final : public AlertPresenter {
public:
    std::size_t runModal(const std::string& message, const std::string& informative,
                         AlertStyle style, const std::vector<std::string>& buttons) override {
        alerts.push_back({message, informative, style, buttons});
        if (answers.empty()) {
            return 0;
        }
        const std::size_t answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::deque<std::size_t> answers; // button indices, the first button being 0
    std::vector<RecordedAlert> alerts;
};

} // namespace velmora::test
