#pragma once

// Keeps every notification of the given names that is posted on a centre, in posting order, for
// as long as it lives. Watchers post from their own threads, so recording is locked.

#include "foundation/notification_center.h"

#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace velmora::test {

class NotificationRecorder {
public:
    NotificationRecorder(NotificationCenter& center, const std::vector<std::string>& names);
    ~NotificationRecorder();
    NotificationRecorder(const NotificationRecorder&) = delete;
    NotificationRecorder& operator=(const NotificationRecorder&) = delete;

    std::vector<Notification> notifications();
    std::vector<std::string> names();

    // Runs as each notification is recorded, to note what else was true at that moment.
    std::function<void(const Notification&)> onPost;

private:
    NotificationCenter& center_;
    std::vector<NotificationCenter::Token> tokens_;
    std::mutex mutex_;
    std::vector<Notification> notifications_;
};

} // namespace velmora::test
