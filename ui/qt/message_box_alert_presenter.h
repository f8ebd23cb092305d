#pragma once

// Alerts as message boxes, modal to the whole application, on top of the active window.

#include "ui/alert_presenter.h"

namespace velmora::qt {

class MessageBoxAlertPresenter final : public AlertPresenter {
public:
    std::size_t runModal(const std::string& message, const std::string& informative,
                         AlertStyle style, const std::vector<std::string>& buttons) override;
};

} // namespace velmora::qt
