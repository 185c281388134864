#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>

namespace host {

namespace {

using Version = std::array<int, 3>;

struct Known {
    Version system;
    double coreFoundation;
};

/// As public headers of the ecosystem list them.
constexpr std::array<Known, 7> known{{
    {{6, 0, 0}, 793.00},
    {{7, 0, 0}, 847.20},
    {{8, 0, 0}, 1140.10},
    {{8, 1, 0}, 1141.14},
    {{8, 2, 0}, 1142.16},
    {{8, 3, 0}, 1144.17},
    {{9, 0, 0}, 1240.1},
}};

/// "8.1.2" as numbers; what is missing or no number is 0.
Version parse(std::string_view text) {
    Version version{};
    for (int &part : version) {
        std::from_chars(text.data(), text.data() + text.size(), part);
        const std::size_t dot = text.find('.');
        if (dot == std::string_view::npos)
            break;
        text.remove_prefix(dot + 1);
    }
    return version;
}

} // namespace

double coreFoundationVersion(std::string_view systemVersion) {
    const Version version = parse(systemVersion);
    double found = known.front().coreFoundation;
    for (const Known &entry : known) {
        if (entry.system <= version)
            found = entry.coreFoundation;
    }
    return found;
}

} // namespace host
