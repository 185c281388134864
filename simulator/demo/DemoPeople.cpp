#include "simulator/demo/DemoPeople.h"

#include "simulator/demo/FictionNumbers.h"

#include <algorithm>

namespace sim {

namespace {

using Values = std::vector<LabelledValue>;

Person person(const char *first, const char *last, Values values) {
    return {.first = first, .last = last, .organization = {}, .values = std::move(values)};
}

Person oneName(const char *first, Values values) {
    return {.first = first, .last = {}, .organization = {}, .values = std::move(values)};
}

Person lastNameOnly(const char *last, Values values) {
    return {.first = {}, .last = last, .organization = {}, .values = std::move(values)};
}

Person company(const char *name, Values values) {
    return {.first = {}, .last = {}, .organization = name, .values = std::move(values)};
}

LabelledValue email(const char *address) {
    return {.value = address, .label = label::home, .property = emailProperty};
}

// A number that nobody has given a label.
LabelledValue bare(const char *number) {
    return {.value = number, .label = {}};
}

constexpr const char *firstNames[] = {"Ada",  "Ben",  "Chloe", "Dan",    "Ella", "Finn", "Grace", "Hugo",
                                      "Iris", "Jack", "Kate",  "Leo",    "Mia",  "Noah", "Olga",  "Paul",
                                      "Rosa", "Sam",  "Tess",  "Viktor", "丽",   "伟",   "芳",    "军"};
constexpr const char *lastNames[] = {"Abbott",  "Berger", "Carver",  "Dupont", "Ellery", "Fischer",
                                     "Garnier", "Hale",   "Irving",  "Jansen", "Kovac",  "Larkin",
                                     "Mercer",  "Novak",  "Osborne", "Price",  "Quill",  "Rowe",
                                     "Sorel",   "Thorne", "王",      "李",     "张",     "刘"};
const std::string *const labels[] = {&label::mobile, &label::home, &label::work, &label::iPhone,
                                     &label::main};

template<typename Array>
const auto &pick(const Array &array, std::mt19937_64 &random) {
    return array[random() % std::size(array)];
}

Person personByChance(std::size_t index, std::mt19937_64 &random) {
    return person(pick(firstNames, random), pick(lastNames, random),
                  {{.value = fictionNumber(index), .label = *pick(labels, random)}});
}

} // namespace

std::vector<Person> inventedPeople() {
    return {
        person("Amelia", "Hartley", {{"+44 7700 900118", label::mobile}, {"020 7946 0018", label::home}}),
        person("Robert", "Miller", {{"+1 (212) 555-0143", label::mobile}, {"(212) 555-0144", label::work}}),
        person("Li", "Na", {{"+1 (415) 555-0112", label::iPhone}}),
        person("Li", "Ming", {{"+1 (415) 555-0113", label::mobile}}),
        person("芳", "王", {{"+1 415 555 0121", label::mobile}, {"+44 20 7946 0321", label::work}}),
        person("伟", "李", {{"+1 415 555 0122", label::mobile}}),
        person("小明", "张", {{"+44 7700 900221", label::iPhone}}),
        person("秀英", "刘", {{"+44 7700 900222", label::home}}),
        person("建国", "欧阳", {{"+1 (604) 555-0131", label::mobile}, {"604-555-0132", label::homeFax}}),
        person("Peter", "陈", {{"+1 (604) 555-0135", label::mobile}}),
        person("丽", "Wong", {{"+44 161 496 0077", label::work}}),
        person("美玲", "林", {{"+61 2 5550 4021", label::mobile}}),
        person("志强", "黄", {{"+61 2 5550 4022", label::mobile}, {"+61 2 7010 4022", label::work}}),
        person("山田", "花子", {{"+1 (206) 555-0151", label::mobile}}),
        person("민준", "김", {{"+1 (206) 555-0152", label::iPhone}}),
        person("Анна", "Иванова", {{"+49 30 23125 017", label::mobile}}),
        person("Дмитрий", "Соколов", {{"+49 30 23125 018", label::work}}),
        person("José", "García Núñez", {{"+33 6 39 98 12 34", label::mobile}}),
        person("Zoë", "O’Neil", {{"+44 131 496 0202", label::mobile}, email("zoe@example.com")}),
        person("Søren", "Ångström", {{"+49 40 66969 112", label::home}}),
        person("Jürgen", "Groß", {{"+49 89 99998 431", label::work}, {"+49 89 99998 432", label::workFax}}),
        person("François", "Lefèvre", {{"+33 1 99 00 45 67", label::work}}),
        person("Nguyễn", "Thị Hoa", {{"+61 3 5550 0034", label::mobile}}),
        person("Ayşe", "Yılmaz", {{"+49 69 90009 077", label::mobile}}),
        person("Wojciech", "Brzęczyszczykiewicz", {{"+49 221 4710 331", label::mobile}}),
        person("Maximilian Alexander", "von Hohenstein-Wittelsberg zu Lauterbach",
               {{"+49 30 23125 900", label::work}}),
        person("🚀 Rocket", "Club", {{"+1 (312) 555-0166", label::main}}),
        person("Mum", "❤️", {{"+44 7700 900333", label::iPhone}, {"01632 960333", label::home}}),
        oneName("Dad", {{"+44 7700 900334", label::iPhone}}),
        oneName("Grandma", {{"01632 960111", label::home}, bare("01632 960112")}),
        oneName("Bo", {{"+1 (617) 555-0101", label::mobile}}),
        oneName("Plumber", {{"0117 496 0455", label::work}, {"+44 7700 900455", "Van"}}),
        oneName("🎸", {{"+1 (312) 555-0177", label::mobile}}),
        oneName("房东", {{"+1 (604) 555-0140", label::home}}),
        lastNameOnly("Dr. Whitfield", {{"020 7946 0555", label::work}, {"020 7946 0556", label::workFax}}),
        lastNameOnly("Okonkwo", {{"+44 121 496 0640", label::mobile}}),
        lastNameOnly("田中", {{"+1 (206) 555-0159", label::other}}),
        company("Corner Bakery", {{"0141 496 0310", label::main}}),
        company("Northgate Dental Practice",
                {{"0161 496 0412", label::main}, {"0161 496 0413", "Emergency"}}),
        company("City Library", {{"+1 (617) 555-0120", label::main}, bare("+1 (617) 555-0121")}),
        company("Taxi 24h", {{"+49 30 23125 555", label::main}}),
        company("翠园酒家", {{"+44 20 7946 0888", label::main}}),
        company("Example Telecom Support", {{"*99#", label::other}, {"+1 212 555 0199;3", label::main}}),
        person("Priya", "Raman",
               {{"+1 (416) 555-0133", label::mobile}, {"+1 (416) 555-0134 ext. 12", label::work}}),
        person("Tomás", "Silva", {{"+33 2 61 91 22 10,,4#", label::work}}),
        person("Conference", "Room", {{"+1-312-555-0188,,,774411#", "Dial-in"}}),
        person("Hannah", "Whitfield", {{"+44 7700 900501", label::mobile}}),
        person("Ian", "Whitfield", {{"+44 7700 900502", label::mobile}, {"01632 960500", label::home}}),
        person("Olivia", "Whitfield", {{"+44 7700 900503", label::iPhone}, {"01632 960500", label::home}}),
        person("Carlos", "Mendes", {{"+33 4 65 71 00 19", label::mobile}}),
        person("Fatima", "Haddad",
               {{"+33 5 36 49 01 23", label::mobile}, {"+33 1 99 00 01 23", label::home}}),
        person("Kofi", "Mensah", {{"+44 131 496 0777", label::mobile}}),
        person("Ingrid", "Dahl", {{"+49 40 66969 500", label::mobile}}),
        person("Luca", "Moretti", {{"+61 7 5550 0901", label::mobile}}),
        person("Sofia", "Moretti", {{"+61 7 5550 0902", label::mobile}, {"+61 7 7010 0902", label::work}}),
        person("Marek", "Dvořák", {{"+61 8 5550 7100", label::pager}}),
        person("Eleanor", "Price", {{"+44 141 496 0091", label::work}, email("eleanor@example.org")}),
        person("Yusuf", "Demir", {{"+49 221 4710 118", label::home}}),
        person("Naomi", "Stein",
               {{"+1 (212) 555-0170", label::mobile},
                {"(212) 555-0171", label::home},
                {"(212) 555-0172", label::work},
                {"(212) 555-0173", label::workFax}}),
        person("Theo", "Barnes", {bare("+44 7700 900620")}),
        person("Ruth", "Adler", {bare("+1 (415) 555-0190"), {"+1 (415) 555-0191", label::mobile}}),
        person("Old", "Neighbour", {}),
        person("Vera", "Lind", {email("vera@example.net")}),
        person("Gym", "Front Desk", {{"020 7946 0700", label::main}}),
        person("Quentin", "Ash", {{"+44 117 496 0123", label::mobile}}),
        person("雨桐", "司马", {{"+61 3 7010 2211", label::mobile}}),
    };
}

std::vector<Person> makePeople(std::size_t count, unsigned seed) {
    std::vector<Person> people = inventedPeople();
    people.resize(std::min(count, people.size()));
    std::mt19937_64 random(seed);
    for (std::size_t index = 0; people.size() < count; ++index)
        people.push_back(personByChance(index, random));
    return people;
}

} // namespace sim
