#include "Foundation/PropertyListScalars.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <strings.h>

namespace host {
namespace {

constexpr std::string_view whiteSpace = " \t\r\n";
constexpr std::string_view base64Digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(whiteSpace);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

bool startsHexadecimal(std::string_view digits) {
    return digits.starts_with("0x") || digits.starts_with("0X");
}

bool equalsIgnoringCase(std::string_view text, const char *word) {
    return text.size() == std::string_view(word).size() && strncasecmp(text.data(), word, text.size()) == 0;
}

double specialReal(std::string_view text) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    if (equalsIgnoringCase(text, "infinity") || equalsIgnoringCase(text, "+infinity"))
        return infinity;
    return equalsIgnoringCase(text, "-infinity") ? -infinity : std::nan("");
}

constexpr std::array<std::int8_t, 256> base64Values() {
    std::array<std::int8_t, 256> values{};
    values.fill(-1);
    for (std::size_t i = 0; i < base64Digits.size(); ++i)
        values[static_cast<unsigned char>(base64Digits[i])] = static_cast<std::int8_t>(i);
    return values;
}

} // namespace

NSNumber *newIntegerOfText(std::string_view text) {
    std::string_view digits = trimmed(text);
    const bool negative = digits.starts_with('-');
    if (negative || digits.starts_with('+'))
        digits.remove_prefix(1);
    const int base = startsHexadecimal(digits) ? 16 : 10;
    if (base == 16)
        digits.remove_prefix(2);
    std::uint64_t value = 0;
    const auto [stop, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
    if (error != std::errc() || stop != digits.data() + digits.size())
        return nil;
    constexpr std::uint64_t most = std::numeric_limits<std::int64_t>::max();
    if (negative && value > most + 1)
        return nil;
    if (!negative && value > most)
        return [[NSNumber alloc] initWithUnsignedLongLong:value];
    return [[NSNumber alloc] initWithLongLong:static_cast<std::int64_t>(negative ? 0 - value : value)];
}

NSNumber *newRealOfText(std::string_view text) {
    std::string_view digits = trimmed(text);
    const double special = specialReal(digits);
    if (std::isinf(special) || equalsIgnoringCase(digits, "nan"))
        return [[NSNumber alloc] initWithDouble:special];
    if (digits.starts_with('+'))
        digits.remove_prefix(1);
    double value = 0;
    const auto [stop, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    const bool isNumber =
        error == std::errc() && stop == digits.data() + digits.size() && std::isfinite(value);
    return isNumber ? [[NSNumber alloc] initWithDouble:value] : nil;
}

NSDate *newDateOfText(std::string_view text) {
    const std::string date(trimmed(text));
    int year = 0;
    int length = 0;
    unsigned month = 0, day = 0, hour = 0, minute = 0, second = 0;
    const int read = std::sscanf(date.c_str(), "%5d-%2u-%2uT%2u:%2u:%2uZ%n", &year, &month, &day, &hour,
                                 &minute, &second, &length);
    if (read != 6 || static_cast<std::size_t>(length) != date.size() || hour > 23 || minute > 59 ||
        second > 60)
        return nil;
    using namespace std::chrono;
    const year_month_day civil{std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
    if (!civil.ok())
        return nil;
    const double days = static_cast<double>(sys_days(civil).time_since_epoch().count());
    return [[NSDate alloc] initWithTimeIntervalSince1970:days * 86400 + hour * 3600 + minute * 60 + second];
}

NSData *newDataOfBase64(std::string_view text) {
    static constexpr auto values = base64Values();
    NSMutableData *data = [[NSMutableData alloc] initWithLength:text.size() / 4 * 3 + 3];
    auto *bytes = static_cast<std::uint8_t *>([data mutableBytes]);
    std::size_t length = 0;
    std::uint32_t group = 0;
    int digits = 0;
    for (const char character : text) {
        if (whiteSpace.find(character) != std::string_view::npos)
            continue;
        if (character == '=')
            break;
        const std::int8_t value = values[static_cast<unsigned char>(character)];
        if (value < 0) {
            [data release];
            return nil;
        }
        group = group << 6 | static_cast<std::uint32_t>(value);
        if (++digits % 4 != 1)
            bytes[length++] = static_cast<std::uint8_t>(group >> (6 - 2 * ((digits - 1) % 4)));
    }
    [data setLength:length];
    return data;
}

bool isReal(NSNumber *number) {
    const char type = *[number objCType];
    return type == 'f' || type == 'd';
}

bool isBoolean(NSNumber *number) {
    static const Class booleans = [[NSNumber numberWithBool:YES] class];
    return [number isKindOfClass:booleans];
}

std::string integerText(NSNumber *number) {
    if (*[number objCType] == 'Q')
        return std::to_string([number unsignedLongLongValue]);
    return std::to_string([number longLongValue]);
}

// 17 digits tell every double apart; Apple writes them all.
std::string realText(double number) {
    if (std::isnan(number))
        return "nan";
    if (std::isinf(number))
        return number > 0 ? "+infinity" : "-infinity";
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", number);
    return text;
}

std::string dateText(NSDate *date) {
    constexpr double earliest = -62135596800;
    constexpr double end = 253402300800;
    const double seconds = std::floor([date timeIntervalSince1970]);
    if (!(seconds >= earliest && seconds < end))
        return {};
    using namespace std::chrono;
    const sys_seconds moment{std::chrono::seconds(static_cast<long long>(seconds))};
    const auto day = floor<days>(moment);
    const year_month_day civil(day);
    const hh_mm_ss time(moment - day);
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(civil.year()),
                  static_cast<unsigned>(civil.month()), static_cast<unsigned>(civil.day()),
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()));
    return text;
}

std::string dataText(NSData *data, std::string_view indent) {
    constexpr std::size_t columns = 76, tabWidth = 8, fewest = 16;
    const std::size_t room = columns - std::min(columns - fewest, indent.size() * tabWidth);
    const std::size_t bytesALine = room / 4 * 3;
    const auto *bytes = static_cast<const std::uint8_t *>([data bytes]);
    const std::size_t count = [data length];
    std::string text;
    for (std::size_t at = 0; at < count; at += 3) {
        if (at % bytesALine == 0)
            (text += at == 0 ? "" : "\n") += indent;
        const std::size_t left = count - at;
        const std::uint32_t group =
            bytes[at] << 16 | (left > 1 ? bytes[at + 1] << 8 : 0) | (left > 2 ? bytes[at + 2] : 0);
        text += base64Digits[group >> 18];
        text += base64Digits[group >> 12 & 63];
        text += left > 1 ? base64Digits[group >> 6 & 63] : '=';
        text += left > 2 ? base64Digits[group & 63] : '=';
    }
    return text.empty() ? text : text + "\n";
}

} // namespace host
