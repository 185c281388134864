// Tells every connected page what has changed: the server's side of server-sent events.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace sim {

/// One server-sent event: `data` is one line of JSON.
struct ServerEvent {
    std::string name;
    std::string data;

    /// As it goes over the wire.
    [[nodiscard]] std::string wire() const;
};

/// The events waiting for one connected page.
class Subscription {
public:
    /// The next event; nothing after `patience`, or once the subscription is closed.
    [[nodiscard]] std::optional<ServerEvent> next(std::chrono::milliseconds patience);
    [[nodiscard]] bool closed() const;

private:
    friend class EventHub;
    void push(const ServerEvent &event, bool replacesEarlier);
    void close();

    mutable std::mutex _mutex;
    std::condition_variable _changed;
    std::deque<ServerEvent> _events;
    bool _closed = false;
};

class EventHub {
public:
    explicit EventHub(std::size_t limit) : _limit(limit) {}

    /// A new subscription, or null when `limit` of them are open.
    [[nodiscard]] std::shared_ptr<Subscription> subscribe();
    void unsubscribe(const std::shared_ptr<Subscription> &subscription);

    /// Every event counts: a page that does not take them off in time is disconnected and starts afresh.
    void publish(const ServerEvent &event);

    /// Only the latest event of this name counts: it replaces one that still waits.
    void publishLatest(const ServerEvent &event);

    /// Ends all subscriptions, also those to come.
    void close();

private:
    void publish(const ServerEvent &event, bool replacesEarlier);

    std::size_t _limit;
    std::mutex _mutex;
    bool _closed = false;
    std::vector<std::shared_ptr<Subscription>> _subscriptions;
};

} // namespace sim
