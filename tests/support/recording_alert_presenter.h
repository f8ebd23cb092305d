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
                         AlertStyle style, const std::vector<std::string>& buttons) override;

    // Runs while the alert is up, before it is answered: what the user sees behind it.
    void whileShown(std::function<void()> look) { whileShown_ = std::move(look); }

    const std::vector<RecordedAlert>& alerts() const { return alerts_; }
    // The informative texts, in the order shown.
    std::vector<std::string> informativeTexts() const;
    void clear() { alerts_.clear(); }

private:
    std::vector<RecordedAlert> alerts_;
    std::function<void()> whileShown_;
};

} // namespace velmora::test
