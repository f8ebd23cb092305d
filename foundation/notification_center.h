#pragma once

// Named notifications with a Value as their object, delivered synchronously on the posting thread.
// The instrument session posts on the main thread; the device watchers post from their own
// threads, so adding, removing and posting are safe from any thread.

#include "foundation/value.h"

#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace velmora {

struct Notification {
    std::string name;
    Value object;
    // Details beside the object; most notifications have none.
    Value userInfo;
};

class NotificationCenter {
public:
    using Observer = std::function<void(const Notification&)>;
    using Token = std::uint64_t;

    // The process-wide centre that the application's parts share.
    static NotificationCenter& defaultCenter();

    Token addObserver(std::string name, Observer observer);
    void removeObserver(Token token);
    void post(const std::string& name, const Value& object = {}, const Value& userInfo = {});

private:
    struct Entry {
        Token token;
        std::string name;
        std::function<void(const Notification&)> observer;
    };

    std::mutex mutex_;
    std::vector<Entry> entries_;
    Token next_ = 1;
};

} // namespace velmora
