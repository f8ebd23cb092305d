#include "app/qt/dialog_screen_presenter.h"

#include "app/qt/contact_us_dialog.h"
#include "app/qt/tutorial_dialog.h"

#include <QApplication>

namespace velmora::qt {

void DialogScreenPresenter::presentTutorialScreen() {
    TutorialDialog dialog(bundle_, QApplication::activeWindow());
    dialog.exec();
}

void DialogScreenPresenter::presentContactScreen() {
    ContactUsDialog dialog(workspace_, QApplication::activeWindow());
    dialog.exec();
}

} // namespace velmora::qt
