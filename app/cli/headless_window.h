#pragma once

// The main window without a screen, for one command: the application's controller over the same
// element models, its alerts printed on standard error as "message: informative" (or the
// informative text alone) and answered with the default button. The instrument and the modal
// screens are out of reach from here.

#include "app/cli/cli.h"
#include "foundation/posix/event_loop.h"
#include "ui/main_window.h"
#include "ui/view_controller.h"

#include <functional>
#include <iosfwd>
#include <memory>

namespace velmora::cli {

class HeadlessWindow {
public:
    // Loads the window as the application does; the reference file and the decimal separator
    // come from the command's options. A reference file that cannot be read is reported on
    // standard error and leaves the reference set empty.
    explicit HeadlessWindow(const Context& context);

    // Runs a gesture and then the work it queued. False when an alert came up meanwhile.
    bool perform(const std::function<void()>& gesture);

    MainWindow window;

private:
    class PrintedAlerts final : public AlertPresenter {
    public:
        explicit PrintedAlerts(std::ostream& err) : err_(err) {}
        std::size_t runModal(const std::string& message, const std::string& informative,
                             AlertStyle style, const std::vector<std::string>& buttons) override;
        int shown = 0;

    private:
        std::ostream& err_;
    };

    class NoScreens final : public ScreenPresenter {
    public:
        void presentTutorialScreen() override {}
        void presentContactScreen() override {}
    };

    class NoInstrument final : public InstrumentLink {
    public:
        void connectDataToDevice() override {}
        void disconnectDataToDevice() override {}
    };

    EventLoop runLoop_;
    PrintedAlerts alerts_;
    std::unique_ptr<Locale> locale_;
    NoScreens screens_;
    NoInstrument instrument_;
    ViewController controller_;
};

} // namespace velmora::cli
