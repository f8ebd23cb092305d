#pragma once

// The tutorial and contact screens as modal dialogs over the main window, each made anew for
// its opening and gone when it closes.

#include "app/workspace.h"
#include "foundation/bundle.h"
#include "ui/screen_presenter.h"

class QWidget;

namespace velmora::qt {

class DialogScreenPresenter final : public ScreenPresenter {
public:
    // The tutorial is looked up in bundle; the dialogs sit over window.
    DialogScreenPresenter(Workspace& workspace, const Bundle& bundle, QWidget* window)
        : workspace_(workspace), bundle_(bundle), window_(window) {}

    void presentTutorialScreen() override;
    void presentContactScreen() override;

private:
    Workspace& workspace_;
    const Bundle& bundle_;
    QWidget* window_;
};

} // namespace velmora::qt
