// The rhythm of a vibration.
#pragma once

namespace zv {

/// Milliseconds of vibration or of rest. `Integer` is the word-sized signed integer of the system.
template<typename Integer>
struct VibrationPhase {
    bool on;
    Integer milliseconds;
    bool operator==(const VibrationPhase &) const = default;
};

/// Phases of vibration and pause that fill a total duration.
///
/// There are at most ten cycles of one vibration and one pause; what is left of the total after the tenth is
/// dropped on purpose, so that such a pattern ends with a pause. Durations are used as they are, negative
/// ones too, in arithmetic that wraps around.
template<typename Integer>
class VibrationPattern {
public:
    using Phase = VibrationPhase<Integer>;

    constexpr VibrationPattern(Integer total, Integer on, Integer off) {
        Integer rest = total;
        for (int cycle = 0; cycle < mostCycles && appendCycle(rest, on, off); ++cycle)
            rest = minus(minus(rest, on), off);
    }

    [[nodiscard]] constexpr const Phase *begin() const { return m_phases; }
    [[nodiscard]] constexpr const Phase *end() const { return m_phases + m_count; }

private:
    static constexpr int mostCycles = 10;

    static constexpr Integer minus(Integer left, Integer right) {
        Integer difference = 0;
        (void)__builtin_sub_overflow(left, right, &difference);
        return difference;
    }

    constexpr void append(bool on, Integer milliseconds) { m_phases[m_count++] = {on, milliseconds}; }

    // One vibration and the pause after it; false where the pattern ends inside this cycle.
    constexpr bool appendCycle(Integer rest, Integer on, Integer off) {
        if (minus(rest, on) <= 0) {
            if (rest >= 1)
                append(true, rest);
            return false;
        }
        append(true, on);
        if (minus(rest, on) <= off)
            return false;
        append(false, off);
        return true;
    }

    Phase m_phases[2 * mostCycles] = {};
    int m_count = 0;
};

/// Seconds as whole milliseconds, cut towards zero. What does not fit is the nearest value that does, and no
/// number is 0: so the phone's processors convert.
template<typename Integer>
constexpr Integer milliseconds(float seconds) {
    constexpr Integer lowest = static_cast<Integer>(1ULL << (8 * sizeof(Integer) - 1));
    constexpr Integer highest = static_cast<Integer>(~static_cast<unsigned long long>(lowest));
    const double exact = seconds * 1000.0;
    if (exact != exact)
        return 0;
    if (exact <= static_cast<double>(lowest))
        return lowest;
    // One above the highest, a power of two, is exact in a double; the highest itself may not be.
    return exact >= -static_cast<double>(lowest) ? highest : static_cast<Integer>(exact);
}

} // namespace zv
