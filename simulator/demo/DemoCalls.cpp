#include "simulator/demo/DemoCalls.h"

#include "simulator/demo/FictionNumbers.h"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

constexpr double day = 86400;
constexpr double days = 30;

// The standard library's distributions differ from one library to the next; equal seeds are to give equal
// calls.
double fraction(std::mt19937_64 &random) {
    return static_cast<double>(random() % 1000000) / 1000000;
}

bool happens(double probability, std::mt19937_64 &random) {
    return fraction(random) < probability;
}

std::vector<std::string> numbersOf(const std::vector<Person> &people) {
    std::vector<std::string> numbers;
    for (const Person &person : people) {
        for (const LabelledValue &value : person.values) {
            if (value.property == phoneProperty)
                numbers.push_back(value.value);
        }
    }
    return numbers;
}

// Among friends the first ones are called most; strangers have numbers from the far end of the ranges.
std::string otherEnd(const std::vector<std::string> &numbers, std::mt19937_64 &random) {
    if (numbers.empty() || happens(0.2, random))
        return fictionNumber(fictionNumberCount() - 1 - random() % 5000);
    double skewed = std::pow(fraction(random), 2);
    return numbers[static_cast<std::size_t>(skewed * static_cast<double>(numbers.size()))];
}

// The phone stores a dialled number without its spaces and brackets.
std::string asDialled(const std::string &number) {
    std::string dialled;
    std::copy_if(number.begin(), number.end(), std::back_inserter(dialled),
                 [](char c) { return (c >= '0' && c <= '9') || c == '+' || c == '*' || c == '#'; });
    return dialled;
}

Call makeCall(const std::vector<std::string> &numbers, double moment, std::mt19937_64 &random) {
    Call call;
    call.direction = happens(0.5, random) ? CallDirection::outgoing : CallDirection::incoming;
    std::string number = otherEnd(numbers, random);
    call.address = call.direction == CallDirection::outgoing ? number : asDialled(number);
    call.moment = moment;
    call.duration = happens(0.3, random) ? 0 : std::floor(std::pow(fraction(random), 3) * 3000) + 1;
    call.service = happens(0.1, random) ? CallService::faceTime : CallService::phone;
    return call;
}

} // namespace

std::vector<Call> makeCalls(std::size_t count, const std::vector<Person> &people, double now, unsigned seed) {
    std::mt19937_64 random(seed);
    std::vector<double> moments(count);
    for (double &moment : moments)
        moment = std::floor(now - fraction(random) * days * day);
    std::sort(moments.begin(), moments.end());
    std::vector<std::string> numbers = numbersOf(people);
    std::vector<Call> calls;
    for (double moment : moments)
        calls.push_back(makeCall(numbers, moment, random));
    return calls;
}

} // namespace sim
