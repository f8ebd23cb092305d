#include "tests/support/notification_recorder.h"

namespace velmora::test {

NotificationRecorder::NotificationRecorder(NotificationCenter& center,
                                           std::initializer_list<std::string> names)
    : center_(center) {
    for (const auto& name : names) {
        tokens_.push_back(center_.addObserver(name, [this](const Notification& n) {
            const std::lock_guard lock(mutex_);
            seen_.push_back(n);
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
    return seen_;
}

std::vector<std::string> NotificationRecorder::names() {
    const std::lock_guard lock(mutex_);
    std::vector<std::string> names;
    for (const auto& n : seen_) {
        names.push_back(n.name);
    }
    return names;
}

} // namespace velmora::test
