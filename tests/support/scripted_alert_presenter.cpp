#include "tests/support/scripted_alert_presenter.h"

namespace velmora::test {

std::size_t ScriptedAlertPresenter::runModal(const std::string& message,
                                             const std::string& informative, AlertStyle style,
                                             const std::vector<std::string>& buttons) {
    alerts_.push_back({message, informative, style, buttons});
    if (whileShown_) {
        whileShown_();
    }
    if (script_.empty()) {
        return 0;
    }
    const std::size_t answer = script_.front();
    script_.pop_front();
    return answer;
}

std::vector<std::string> ScriptedAlertPresenter::informativeTexts() const {
    std::vector<std::string> texts;
    for (const auto& alert : alerts_) {
        texts.push_back(alert.informative);
    }
    return texts;
}

} // namespace velmora::test
