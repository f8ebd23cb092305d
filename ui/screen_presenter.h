#pragma once

// The two modal screens the navigation opens: the tutorial and the contact screen. The window
// application presents its real screens; the tests record the requests.

namespace velmora {

class ScreenPresenter {
public:
    virtual ~ScreenPresenter() = default;
    virtual void presentTutorialScreen() = 0;
    virtual void presentContactScreen() = 0;
};

} // namespace velmora
