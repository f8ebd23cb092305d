#include "tests/support/recording_alert_presenter.h"

namespace velmora::test {

std::size_t RecordingAlertPresenter::runModal(const std::string& message,
                                              const std::string& informative, AlertStyle style,
                                              const std::vector<std::string>& buttons) {
    alerts_.push_back({message, informative, style, buttons});
    if (whileShown_) {
        whileShown_();
    }
    return 0;
}

std::vector<std::string> RecordingAlertPresenter::informativeTexts() const {
    std::vector<std::string> texts;
    for (const auto& alert : alerts_) {
        texts.push_back(alert.informative);
    }
    return texts;
}

} // namespace velmora::test
