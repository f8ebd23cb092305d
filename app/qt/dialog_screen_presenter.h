#pragma once

// The tutorial and contact screens as modal dialogs over the active window, each made anew for
// its opening and gone when it closes.

#include "app/workspace.h"
#include "foundation/bundle.h"
#include "ui/screen_presenter.h"

namespace velmora::qt {

class DialogScreenPresenter final : public ScreenPresenter {
public:
    // The tutorial is looked up in bundle.
    DialogScreenPresenter(Workspace& workspace, const Bundle& bundle)
        : workspace_(workspace), bundle_(bundle) {}

    void presentTutorialScreen() override;
    void presentContactScreen() override;

private:
    Workspace& workspace_;
    const Bundle& bundle_;
};

} // namespace velmora::qt
