#include "app/cli/headless_window.h"

#include <ostream>

namespace velmora::cli {
namespace {

std::unique_ptr<Locale> localeOf(const Context& context) {
    return std::make_unique<FixedLocale>(context.locale());
}

} // namespace

std::size_t HeadlessWindow::PrintedAlerts::runModal(const std::string& message,
                                                    const std::string& informative, AlertStyle,
                                                    const std::vector<std::string>&) {
    err_ << (message.empty() ? informative : message + ": " + informative) << '\n';
    ++shown;
    return 0;
}

HeadlessWindow::HeadlessWindow(const Context& context)
    : alerts_(*context.err), locale_(localeOf(context)),
      // Diagnostic lines go to standard error: standard output carries only the results.
      controller_(window, {runLoop_, NotificationCenter::defaultCenter(), alerts_, *locale_,
                           context.referencePath(), *context.err, screens_, instrument_}) {
    controller_.viewDidLoad();
    runLoop_.runPending();
}

bool HeadlessWindow::perform(const std::function<void()>& gesture) {
    const int before = alerts_.shown;
    gesture();
    runLoop_.runPending();
    return alerts_.shown == before;
}

} // namespace velmora::cli
