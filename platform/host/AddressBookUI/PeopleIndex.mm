#include "AddressBookUI/PeopleIndex.h"

#include "host/Text.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace host {
namespace {

constexpr std::u16string_view kOthers = u"#";

/// Small letters without accents: what names are compared by.
std::u16string folded(const std::u16string &name) {
    std::u16string plain = utf16([[string(name) lowercaseString] decomposedStringWithCanonicalMapping]);
    std::erase_if(plain, [](char16_t unit) { return unit >= 0x300 && unit <= 0x36F; });
    return plain;
}

bool hasLetterOfItsOwn(char16_t unit) {
    return (unit >= u'a' && unit <= u'z') || (unit >= 0x3B1 && unit <= 0x3C9) ||
           (unit >= 0x430 && unit <= 0x44F);
}

/// Latin, Greek and Cyrillic small letters lie a fixed distance from their capitals.
std::u16string letterOf(const std::u16string &key) {
    if (key.empty() || !hasLetterOfItsOwn(key.front()))
        return std::u16string(kOthers);
    return {static_cast<char16_t>(key.front() - 0x20)};
}

struct Sorted {
    std::u16string letter, key;
    PersonRecord record;

    /// "#" after every letter.
    [[nodiscard]] auto order() const {
        return std::tuple(letter == kOthers, key.empty(), letter, std::u16string_view(key),
                          record.get()->person->id);
    }
};

std::vector<std::u16string> wordsOf(const std::u16string &text) {
    std::vector<std::u16string> words;
    bool inWord = false;
    for (const char16_t unit : text) {
        if (unit != u' ' && !inWord)
            words.emplace_back();
        inWord = unit != u' ';
        if (inWord)
            words.back() += unit;
    }
    return words;
}

bool isNamed(const Person &person, const std::vector<std::u16string> &wanted, const NameSettings &settings) {
    const auto words = wordsOf(folded(sortName(person, settings)));
    return std::all_of(wanted.begin(), wanted.end(), [&](const std::u16string &beginning) {
        return std::ranges::any_of(words,
                                   [&](const std::u16string &word) { return word.starts_with(beginning); });
    });
}

} // namespace

std::vector<PeopleSection> peopleByLetter(NSArray *records, const NameSettings &settings) {
    std::vector<Sorted> sorted;
    for (HostABPerson *record in records) {
        std::u16string key = folded(sortName(*record->person, settings));
        sorted.push_back({letterOf(key), std::move(key), record});
    }
    std::sort(sorted.begin(), sorted.end(),
              [](const Sorted &a, const Sorted &b) { return a.order() < b.order(); });
    std::vector<PeopleSection> sections;
    for (const Sorted &each : sorted) {
        if (sections.empty() || sections.back().letter != each.letter)
            sections.push_back({each.letter, {}});
        sections.back().people.push_back(each.record);
    }
    return sections;
}

std::vector<PersonRecord> peopleNamed(NSString *query, const std::vector<PeopleSection> &sections,
                                      const NameSettings &settings) {
    const auto wanted = wordsOf(folded(utf16(query)));
    std::vector<PersonRecord> found;
    for (const PeopleSection &section : sections) {
        std::copy_if(
            section.people.begin(), section.people.end(), std::back_inserter(found),
            [&](const PersonRecord &record) { return isNamed(*record.get()->person, wanted, settings); });
    }
    return found;
}

std::u16string shownName(const Person &person, const NameSettings &settings) {
    std::u16string name = compositeName(person, settings);
    if (!name.empty())
        return name;
    for (const auto &[property, values] : person.values) {
        if (!values.empty())
            return values.front().value;
    }
    return {};
}

} // namespace host
