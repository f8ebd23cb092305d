#include "foundation/notification_center.h"

#include <algorithm>

namespace velmora {

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

NotificationCenter::Token NotificationCenter::add(std::type_index type,
                                                  std::function<void(const void*)> observer) {
    const std::lock_guard lock(mutex_);
    const Token token = next_++;
    entries_.push_back(std::make_shared<Entry>(Entry{token, type, std::move(observer), false, {}}));
    return token;
}

void NotificationCenter::removeObserver(Token token) {
    std::unique_lock lock(mutex_);
    const auto it = std::ranges::find(entries_, token, [](const auto& e) { return e->token; });
    if (it == entries_.end()) {
        return;
    }
    const std::shared_ptr<Entry> entry = *it;
    entries_.erase(it);
    entry->removed = true;
    const auto self = std::this_thread::get_id();
    callEnded_.wait(lock, [&] {
        return std::ranges::all_of(entry->runningOn, [self](auto id) { return id == self; });
    });
}

void NotificationCenter::deliver(std::type_index type, const void* notification) {
    std::vector<std::shared_ptr<Entry>> targets;
    {
        const std::lock_guard lock(mutex_);
        for (const auto& e : entries_) {
            if (e->type == type) {
                targets.push_back(e);
            }
        }
    }
    const auto self = std::this_thread::get_id();
    for (const auto& entry : targets) {
        {
            // An earlier observer, or another thread, may have removed this one meanwhile.
            const std::lock_guard lock(mutex_);
            if (entry->removed) {
                continue;
            }
            entry->runningOn.push_back(self);
        }
        // Whatever the observer does, its call is over when it returns or throws.
        struct CallEnd {
            NotificationCenter& center;
            Entry& entry;
            std::thread::id self;
            ~CallEnd() {
                {
                    const std::lock_guard lock(center.mutex_);
                    entry.runningOn.erase(std::ranges::find(entry.runningOn, self));
                }
                center.callEnded_.notify_all();
            }
        } end{*this, *entry, self};
        entry->observer(notification);
    }
}

} // namespace velmora
