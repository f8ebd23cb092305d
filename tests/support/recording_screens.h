#pragma once

// Records which modal screens the window asked for, in order.

#include "ui/screen_presenter.h"

#include <string>
#include <vector>

namespace velmora::test {

class RecordingScreens final : public ScreenPresenter {
public:
    void presentTutorialScreen() override { presented.push_back("tutorial"); }
    void presentContactScreen() override { presented.push_back("contact"); }

    std::vector<std::string> presented;
};

} // namespace velmora::test
