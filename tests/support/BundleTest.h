// The bundle on a phone of its own, used by a person; what the tests then look at is on the screen, in the
// phone's files or in the event log.
#pragma once

#include "host/Clock.h"
#include "host/Control.h"
#include "support/Person.h"
#include "support/PropertyLists.h"
#include "support/TestDevice.h"

#include <gmock/gmock.h>
#include <iosfwd>
#include <string>
#include <vector>

@class ZelvoraSettingsController;

namespace support {

/// A row as it is read: its text and what stands under or beside it.
struct Row {
    std::string text;
    std::string detail;
    bool operator==(const Row &) const = default;
};

std::ostream &operator<<(std::ostream &stream, const Row &row);

/// A phone whose screen is so high that no page of the bundle needs scrolling.
[[nodiscard]] host::DeviceOptions tallPhone(const std::string &language = "en",
                                            const std::string &region = "US");

class BundleTest : public testing::Test {
protected:
    explicit BundleTest(const host::DeviceOptions &options = tallPhone());
    ~BundleTest() override;

    /// Opens the bundle's page from the root list of Settings.
    static void open();

    /// Loads the bundle without showing anything, for tests of single classes.
    static void load();
    /// A class of the bundle, which is loaded if it is not yet.
    static Class classNamed(const char *name);
    /// The bundle's shared instance; nil while there is none.
    static ZelvoraSettingsController *rootPage();

    /// The rows of a section of the table in front, from the first to the last on the screen.
    [[nodiscard]] static std::vector<Row> rows(int section);
    /// Taps a row that has no name, or shares it with others.
    static void tapRow(int section, int row);

    /// Taps the button at the right of the bar in front, which may show a picture alone.
    static void tapRightButton();

    [[nodiscard]] static std::vector<std::string> notifications();
    [[nodiscard]] static std::vector<std::string> commands();

    TestDevice device;
    Person person;
};

} // namespace support
