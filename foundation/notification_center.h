#pragma once

// Typed notifications, delivered synchronously on the posting thread. A notification is a payload
// struct with its name as a static member:
//
//     struct HIDDeviceDataReceived {
//         static constexpr std::string_view name = "HIDDeviceDataReceived";
//         std::string data;
//     };
//     center.addObserver<HIDDeviceDataReceived>([](const HIDDeviceDataReceived& n) { ... });
//     center.post(HIDDeviceDataReceived{"1.540"});
//
// Observers are chosen by the payload's type, so a receiver never checks what it was given; the
// name is what logs and the command line call the notification. Two payload types may share a
// name: the HID monitor posts under the session's names with payloads of its own, and the session's
// observers do not see them.
//
// The instrument session posts on the main thread, the device watchers from their own threads, so
// adding, removing and posting are safe from any thread. Observers run outside the lock: one may
// post, add or remove in turn.

#include <concepts>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string_view>
#include <thread>
#include <typeindex>
#include <vector>

namespace velmora {

template <class N>
concept Notification = requires {
    { N::name } -> std::convertible_to<std::string_view>;
};

class NotificationCenter {
public:
    using Token = std::uint64_t;

    // The process-wide centre that the application's parts share.
    static NotificationCenter& defaultCenter();

    template <Notification N, std::invocable<const N&> Observer>
    Token addObserver(Observer observer) {
        return add(typeid(N), [observer = std::move(observer)](const void* notification) {
            observer(*static_cast<const N*>(notification));
        });
    }

    // Returns once no call of the observer is running and none will start, so what it refers to
    // may go right after. A call on this very thread (the observer removing itself) is not waited
    // for. Must not be called while holding a lock that the observer takes.
    void removeObserver(Token token);

    template <Notification N> void post(const N& notification) {
        deliver(typeid(N), &notification);
    }

private:
    struct Entry {
        Token token;
        std::type_index type;
        std::function<void(const void*)> observer;
        bool removed = false;
        std::vector<std::thread::id> runningOn; // one entry per call in progress
    };

    Token add(std::type_index type, std::function<void(const void*)> observer);
    void deliver(std::type_index type, const void* notification);

    std::mutex mutex_;
    std::condition_variable callEnded_;
    std::vector<std::shared_ptr<Entry>> entries_;
    Token next_ = 1;
};

} // namespace velmora
