#include "tests/support/notification_recorder.h"

namespace velmora::test {

NotificationRecorder::NotificationRecorder(NotificationCenter& center,
                                           const std::vector<std::string>& names)
    : center_(center) {
    for (const auto& name : names) {
        tokens_.push_back(center_.addObserver(name, [this](const Notification& n) {
            notifications_.push_back(n);
            if (onPost) {
                onPost(n);
            }
        }));
    }
}

NotificationRecorder::~NotificationRecorder() {
    for (const auto token : tokens_) {
        center_.removeObserver(token);
    }
}

std::vector<std::string> NotificationRecorder::names() const {
    std::vector<std::string> result;
    for (const auto& n : notifications_) {
        result.push_back(n.name);
    }
    return result;
}

} // namespace velmora::test
