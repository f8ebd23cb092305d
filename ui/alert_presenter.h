#pragma once

// Modal alerts: shown on top of the window, holding everything until the user presses a button.
// The application shows a message box; the command line prints the texts; the tests record them.

#include <string>
#include <vector>

namespace velmora {

enum class AlertStyle { Warning = 0, Informational = 1, Critical = 2 };

class AlertPresenter {
public:
    virtual ~AlertPresenter() = default;
    // Shows the alert and returns once a button is pressed: the index of that button in
    // buttons, the first being the default.
    virtual std::size_t runModal(const std::string& message, const std::string& informative,
                                 AlertStyle style, const std::vector<std::string>& buttons) = 0;
};

} // namespace velmora
