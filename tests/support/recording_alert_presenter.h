#pragma once

// Records every alert and answers each with the next scripted button, then with the default one.

#include "ui/alert_presenter.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace velmora::test {

struct RecordedAlert {
    std::string message;
    std::string informative;
    AlertStyle style;
    std::vector<std::string> buttons;
};

class RecordingAlertPresenter final : public AlertPresenter {
public:
    std::size_t runModal(const std::string& message, const std::string& informative,
                         AlertStyle style, const std::vector<std::string>& buttons) override {
        alerts.push_back({message, informative, style, buttons});
        if (whileShown) {
            whileShown();
        }
        if (answers.empty()) {
            return 0;
        }
        const std::size_t answer = answers.front();
        answers.pop_front();
        return answer;
    }

    // The informative texts, or another of the alerts' texts, in the order shown.
    std::vector<std::string>
    texts(std::string RecordedAlert::*text = &RecordedAlert::informative) const {
        std::vector<std::string> shown(alerts.size());
        std::ranges::transform(alerts, shown.begin(), text);
        return shown;
    }

    std::vector<RecordedAlert> alerts;
    std::deque<std::size_t> answers; // button indices, the first button being 0
    // Runs while the alert is up, before it is answered: what the user sees behind it.
    std::function<void()> whileShown;
};

} // namespace velmora::test
