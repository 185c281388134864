// The pages of an older system with the tool at its place: what a person chooses is in the history in the
// end.
#import "support/BundleTest.h"

#include "support/CallHistoryBuilder.h"

#include <filesystem>

using testing::ElementsAre;

namespace {

constexpr const char *callHistory = "/var/wireless/Library/CallHistory/call_history.db";

class ZvtoolPages : public support::BundleTest {
protected:
    ZvtoolPages() {
        host::setSystemVersion("7.1.2");
        std::filesystem::copy_file(ZV_TOOL, device.path("/Library/Zelvora/zvtool"));
        support::CallHistoryBuilder(device.path(callHistory), zv::CallHistorySchema::keyValue)
            .call("555-0101", 1425600000);
        open();
    }

    [[nodiscard]] std::string property(const std::string &key) const {
        return sim::SqlFile(device.path(callHistory))
            .value("SELECT value FROM _SqliteDatabaseProperties WHERE key = '" + key + "'");
    }
};

TEST_F(ZvtoolPages, RaiseTheLimitAndLowerIt) {
    person.tap("History Limit");
    person.tap("2,000 Calls");
    person.answer("OK");
    EXPECT_TRUE(person.sees("Succeed!"));
    person.answer("OK");
    EXPECT_EQ(property("call_history_limit"), "2000");
    person.tap("100 Calls");
    EXPECT_EQ(property("call_history_limit"), "100");
    person.back();
    EXPECT_EQ(person.valueOf("History Limit"), "100 Calls");
    EXPECT_THAT(commands(), ElementsAre("/Library/Zelvora/zvtool -i 2000", "/Library/Zelvora/zvtool -u"));
}

TEST_F(ZvtoolPages, SayThatARaiseFailedWhereTheToolFails) {
    device.write("/Library/Zelvora/zvtool.fail", "");
    person.tap("History Limit");
    person.tap("2,000 Calls");
    person.answer("OK");
    EXPECT_TRUE(person.sees("Failed!"));
    person.answer("OK");
    EXPECT_EQ(property("call_history_limit"), "100");
}

TEST_F(ZvtoolPages, SetTheCallTime) {
    person.tap("Keep Calls");
    tapRow(0, 0);
    const auto field = person.focusedField();
    (void)host::perform({.kind = host::GestureKind::replace, .number = field.number, .text = "1502"});
    person.tap("Save");
    EXPECT_EQ(property("timer_lifetime"), "90120");
    EXPECT_TRUE(person.sees("1 days 1 hours 2 minutes"));
}

} // namespace
