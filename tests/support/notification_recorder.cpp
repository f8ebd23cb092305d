#include "tests/support/notification_recorder.h"

namespace velmora::test {

NotificationRecorder::NotificationRecorder(NotificationCenter& center,
                                           const std::vector<std::string>& names)
    : center_(center) {
    for (const auto& name : names) {
        tokens_.push_back(center_.addObserver(name, [this](const Notification& n) {
            {
                const std::lock_guard lock(mutex_);
                notifications_.push_back(n);
            }
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

std::vector<Notification> NotificationRecorder::notifications() {
    const std::lock_guard lock(mutex_);
    return notifications_;
}

std::vector<std::string> NotificationRecorder::names() {
    std::vector<std::string> result;
    for (const auto& n : notifications()) {
        result.push_back(n.name);
    }
    return result;
}

} // namespace velmora::test
