// Pages that change places on the screen, one change after the other. Each takes two turns of the run loop,
// in place of an animation: in the first the pages are told what will happen, in the second what did.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace host {

struct Transition {
    std::function<void()> begin;
    std::function<void()> end;
};

/// Carries out `transition` when those before it have ended.
void enqueue(Transition transition);

/// Whether a transition is under way or waits.
[[nodiscard]] bool inTransition();

/// Says that the screen changes, in the way of `kind` as the Window element names it: "push", "pop",
/// "present", "dismiss", "none".
void noteTransition(const std::string &kind);

/// The kind of the last transition that began, and how many there have been.
[[nodiscard]] const std::string &lastTransition();
[[nodiscard]] std::uint64_t transitionCount();

} // namespace host
