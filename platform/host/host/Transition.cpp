#include "host/Transition.h"

#include "host/Work.h"

#include <deque>
#include <utility>

namespace host {

namespace {

/// The first one is under way. Lives as long as the process: it may hold pages.
std::deque<Transition> &queue() {
    static auto &transitions = *new std::deque<Transition>;
    return transitions;
}

std::string lastKind = "none";
std::uint64_t count = 0;

void begin();

void end() {
    const Transition transition = std::move(queue().front());
    transition.end();
    queue().pop_front();
    if (!queue().empty())
        later(begin);
}

void begin() {
    queue().front().begin();
    later(end);
}

} // namespace

void enqueue(Transition transition) {
    queue().push_back(std::move(transition));
    if (queue().size() == 1)
        later(begin);
}

bool inTransition() {
    return !queue().empty();
}

void noteTransition(const std::string &kind) {
    lastKind = kind;
    count++;
}

const std::string &lastTransition() {
    return lastKind;
}

std::uint64_t transitionCount() {
    return count;
}

} // namespace host
