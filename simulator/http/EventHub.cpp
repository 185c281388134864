#include "simulator/http/EventHub.h"

#include <algorithm>

namespace sim {

namespace {

/// A page that is this far behind has stopped reading.
constexpr std::size_t longestBacklog = 512;

} // namespace

std::string ServerEvent::wire() const {
    return "event: " + name + "\ndata: " + data + "\n\n";
}

std::optional<ServerEvent> Subscription::next(std::chrono::milliseconds patience) {
    std::unique_lock lock(_mutex);
    _changed.wait_for(lock, patience, [this] { return _closed || !_events.empty(); });
    if (_closed || _events.empty())
        return std::nullopt;
    ServerEvent event = std::move(_events.front());
    _events.pop_front();
    return event;
}

bool Subscription::closed() const {
    const std::lock_guard lock(_mutex);
    return _closed;
}

void Subscription::push(const ServerEvent &event, bool replacesEarlier) {
    {
        const std::lock_guard lock(_mutex);
        if (replacesEarlier)
            std::erase_if(_events, [&](const ServerEvent &earlier) { return earlier.name == event.name; });
        _events.push_back(event);
        _closed = _closed || _events.size() > longestBacklog;
    }
    _changed.notify_one();
}

void Subscription::close() {
    {
        const std::lock_guard lock(_mutex);
        _closed = true;
    }
    _changed.notify_one();
}

std::shared_ptr<Subscription> EventHub::subscribe() {
    const std::lock_guard lock(_mutex);
    if (_closed || _subscriptions.size() >= _limit)
        return nullptr;
    return _subscriptions.emplace_back(std::make_shared<Subscription>());
}

void EventHub::unsubscribe(const std::shared_ptr<Subscription> &subscription) {
    const std::lock_guard lock(_mutex);
    std::erase(_subscriptions, subscription);
}

void EventHub::publish(const ServerEvent &event) {
    publish(event, false);
}

void EventHub::publishLatest(const ServerEvent &event) {
    publish(event, true);
}

void EventHub::publish(const ServerEvent &event, bool replacesEarlier) {
    const std::lock_guard lock(_mutex);
    for (const auto &subscription : _subscriptions)
        subscription->push(event, replacesEarlier);
}

void EventHub::close() {
    const std::lock_guard lock(_mutex);
    _closed = true;
    for (const auto &subscription : _subscriptions)
        subscription->close();
}

} // namespace sim
