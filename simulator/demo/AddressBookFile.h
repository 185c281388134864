// Makes an address-book database with the phone's schema and adds people to it.
#pragma once

#include "simulator/demo/SqlFile.h"

#include <random>

namespace sim {

/// Labels as the phone stores those it knows; any other text is a label of the user's own.
namespace label {
inline const std::string mobile = "_$!<Mobile>!$_";
inline const std::string iPhone = "iPhone";
inline const std::string home = "_$!<Home>!$_";
inline const std::string work = "_$!<Work>!$_";
inline const std::string main = "_$!<Main>!$_";
inline const std::string homeFax = "_$!<HomeFAX>!$_";
inline const std::string workFax = "_$!<WorkFAX>!$_";
inline const std::string pager = "_$!<Pager>!$_";
inline const std::string other = "_$!<Other>!$_";
} // namespace label

/// Property ids of ABMultiValue.
constexpr std::int64_t phoneProperty = 3;
constexpr std::int64_t emailProperty = 4;

struct LabelledValue {
    std::string value;
    std::optional<std::string> label;
    std::int64_t property = phoneProperty;
};

struct Person {
    std::optional<std::string> first;
    std::optional<std::string> last;
    std::optional<std::string> organization;
    std::vector<LabelledValue> values;
};

/// A new address book without people. Ids are made from a fixed seed, so equal people make equal files.
class AddressBookFile {
public:
    /// Replaces nothing: the file must not exist yet.
    explicit AddressBookFile(const std::string &path);

    /// Adds a person and the values; returns the person's ROWID.
    std::int64_t add(const Person &person);

    /// Adds one value of any SQL type to a person. `label` is a ROWID of ABMultiValueLabel or NULL.
    void addValue(std::int64_t person, std::int64_t property, const SqlValue &value, const SqlValue &label);

    /// The ROWID of a label, added where it is new.
    [[nodiscard]] std::int64_t labelRow(const std::string &label);

    [[nodiscard]] SqlFile &sql() { return m_file; }

private:
    static void generateGuid(sqlite3_context *context, int count, sqlite3_value **values);

    SqlFile m_file;
    std::mt19937_64 m_random{8};
    std::unordered_map<std::string, std::int64_t> m_labels;
};

} // namespace sim
