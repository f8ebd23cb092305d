#pragma once

// Keeps every notification of the given names that is posted on a centre, in posting order, for
// as long as it lives.

#include "foundation/notification_center.h"

#include <functional>
#include <string>
#include <vector>

namespace velmora::test {

class NotificationRecorder {
public:
    NotificationRecorder(NotificationCenter& center, const std::vector<std::string>& names);
    ~NotificationRecorder();
    NotificationRecorder(const NotificationRecorder&) = delete;
    NotificationRecorder& operator=(const NotificationRecorder&) = delete;

    const std::vector<Notification>& notifications() const { return notifications_; }
    std::vector<std::string> names() const;

    // Runs as each notification is recorded, to note what else was true at that moment.
    std::function<void(const Notification&)> onPost;

private:
    NotificationCenter& center_;
    std::vector<NotificationCenter::Token> tokens_;
    std::vector<Notification> notifications_;
};

} // namespace velmora::test
