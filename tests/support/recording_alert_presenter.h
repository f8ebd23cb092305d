#pragma once

// Records every alert and answers it with the default button.

#include "ui/alert_presenter.h"

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
        return 0;
    }

    // The informative texts, in the order shown.
    std::vector<std::string> informativeTexts() const {
        std::vector<std::string> texts;
        for (const auto& alert : alerts) {
            texts.push_back(alert.informative);
        }
        return texts;
    }

    std::vector<RecordedAlert> alerts;
    // Runs while the alert is up, before it is answered: what the user sees behind it.
    std::function<void()> whileShown;
};

} // namespace velmora::test
