#pragma once

// Records the notifications of the given names that a centre delivers, from any thread.

#include "foundation/notification_center.h"

#include <initializer_list>
#include <mutex>
#include <string>
#include <vector>

namespace velmora::test {

class NotificationRecorder {
public:
    NotificationRecorder(NotificationCenter& center, std::initializer_list<std::string> names);
    NotificationRecorder(const NotificationRecorder&) = delete;
    NotificationRecorder& operator=(const NotificationRecorder&) = delete;
    ~NotificationRecorder();

    std::vector<Notification> notifications();
    std::vector<std::string> names();

private:
    NotificationCenter& center_;
    std::vector<NotificationCenter::Token> tokens_;
    std::mutex mutex_;
    std::vector<Notification> seen_;
};

} // namespace velmora::test
