#include "foundation/notification_center.h"

#include <algorithm>

namespace velmora {

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

NotificationCenter::Token NotificationCenter::addObserver(std::string name, Observer observer) {
    const std::lock_guard lock(mutex_);
    const Token token = next_++;
    entries_.push_back({token, std::move(name), std::move(observer)});
    return token;
}

void NotificationCenter::removeObserver(Token token) {
    const std::lock_guard lock(mutex_);
    std::erase_if(entries_, [token](const Entry& e) { return e.token == token; });
}

void NotificationCenter::post(const std::string& name, const Value& object, const Value& userInfo) {
    // Observers run outside the lock: one may post, add or remove in turn.
    std::vector<Observer> targets;
    {
        const std::lock_guard lock(mutex_);
        for (const auto& e : entries_) {
            if (e.name == name) {
                targets.push_back(e.observer);
            }
        }
    }
    const Notification n{name, object, userInfo};
    for (const auto& observer : targets) {
        observer(n);
    }
}

} // namespace velmora
