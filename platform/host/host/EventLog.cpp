#include "host/EventLog.h"

#include "host/Clock.h"

#include <utility>

namespace host {

namespace {

constexpr std::size_t mostEvents = 10'000;
// Dropping the oldest in blocks keeps the cost of a full log small.
constexpr std::size_t droppedAtOnce = 1'000;

std::uint64_t lastNumber = 0;

std::vector<Event> &log() {
    static auto &all = *new std::vector<Event>;
    return all;
}

std::vector<std::function<void(const Event &)>> &observers() {
    static auto &all = *new std::vector<std::function<void(const Event &)>>;
    return all;
}

// By index and on copies: an observer may record events and add observers.
void tellObservers(const Event &event) {
    for (std::size_t i = 0; i < observers().size(); ++i) {
        const auto observer = observers()[i];
        observer(event);
    }
}

} // namespace

void record(EventKind kind, std::string text, std::string detail, int status) {
    const Event event{++lastNumber, now(), kind, std::move(text), std::move(detail), status};
    if (log().size() == mostEvents)
        log().erase(log().begin(), log().begin() + droppedAtOnce);
    log().push_back(event);
    tellObservers(event);
}

const std::vector<Event> &events() {
    return log();
}

std::vector<std::string> eventTexts(EventKind kind) {
    std::vector<std::string> texts;
    for (const Event &event : log()) {
        if (event.kind == kind)
            texts.push_back(event.text);
    }
    return texts;
}

void forgetEvents() {
    log().clear();
}

void observeEvents(std::function<void(const Event &)> observer) {
    observers().push_back(std::move(observer));
}

} // namespace host
