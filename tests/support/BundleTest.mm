#import "support/BundleTest.h"

#import "rootpage/ZelvoraSettingsController.h"

#include <ostream>

namespace support {

namespace {

using host::Element;

std::vector<Element> cellsOf(int section) {
    std::vector<Element> cells;
    const Element screen = host::screen();
    const auto tables = screen.all("Table");
    if (tables.empty())
        return cells;
    for (const Element *cell : tables.back()->all("Cell")) {
        if (cell->amount("section") == section)
            cells.push_back(*cell);
    }
    return cells;
}

} // namespace

std::ostream &operator<<(std::ostream &stream, const Row &row) {
    return stream << '"' << row.text << "\" / \"" << row.detail << '"';
}

host::DeviceOptions tallPhone(const std::string &language, const std::string &region) {
    host::DeviceOptions options;
    options.language = language;
    options.region = region;
    options.height = 4000;
    return options;
}

BundleTest::BundleTest(const host::DeviceOptions &options) : device(options) {
}

BundleTest::~BundleTest() {
    host::closePages();
}

void BundleTest::open() {
    std::string reason;
    ASSERT_TRUE(host::openBundle(@ZV_BUNDLE_PATH, &reason)) << reason;
    host::waitUntilIdle();
}

void BundleTest::load() {
    static const bool loaded = [[NSBundle bundleWithPath:@ZV_BUNDLE_PATH] load];
    ASSERT_TRUE(loaded) << ZV_BUNDLE_PATH;
}

Class BundleTest::classNamed(const char *name) {
    load();
    return NSClassFromString(text(name));
}

ZelvoraSettingsController *BundleTest::rootPage() {
    return [classNamed("ZelvoraSettingsController") sharedInstance];
}

std::vector<Row> BundleTest::rows(int section) {
    std::vector<Row> rows;
    for (const Element &cell : cellsOf(section))
        rows.push_back({cell.label, cell.value});
    return rows;
}

void BundleTest::tapRow(int section, int row) {
    for (const Element &cell : cellsOf(section)) {
        if (cell.amount("row") == row) {
            EXPECT_EQ(host::perform({.number = cell.number}), host::Outcome::done);
            return;
        }
    }
    ADD_FAILURE() << "no row " << row << " in section " << section << ":\n" << drawn(host::screen());
}

void BundleTest::tapRightButton() {
    const Element screen = host::screen();
    const auto bars = screen.all("NavigationBar");
    const Element *button = bars.empty() ? nullptr : bars.back()->find([](const Element &element) {
        return element.type == "Button" && element.text("role") == "right";
    });
    ASSERT_TRUE(button) << drawn(screen);
    EXPECT_EQ(host::perform({.number = button->number, .part = button->part}), host::Outcome::done);
}

std::vector<std::string> BundleTest::notifications() {
    return host::eventTexts(host::EventKind::notification);
}

std::vector<std::string> BundleTest::commands() {
    return host::eventTexts(host::EventKind::command);
}

} // namespace support
