#include "app/qt/dialog_screen_presenter.h"

#include "app/qt/contact_us_dialog.h"
#include "app/qt/tutorial_dialog.h"

namespace velmora::qt {

void DialogScreenPresenter::presentTutorialScreen() {
    TutorialDialog dialog(bundle_, window_);
    dialog.exec();
}

void DialogScreenPresenter::presentContactScreen() {
    ContactUsDialog dialog(workspace_, window_);
    dialog.exec();
}

} // namespace velmora::qt
