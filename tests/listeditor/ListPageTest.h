// A list page in front of a person.
#pragma once

#import "support/BundleTest.h"

/// Opens the pages of lists from the root page; `link` is the label of the link, `id` the list's id.
class ListPageTest : public support::BundleTest {
protected:
    using BundleTest::BundleTest;
    using Entries = support::Entries;
    using Row = support::Row;

    static constexpr int actions = 0, entries = 1; // sections

    static std::string userFile(const std::string &id) {
        return "/var/mobile/Library/Preferences/zelvora." + id + ".plist";
    }
    static std::string defaultFile(const std::string &id) {
        return "/Library/Zelvora/Default/zelvora." + id + ".plist";
    }

    void openList(const std::string &link) {
        open();
        person.tap(link);
        host::forgetEvents();
    }

    void openBlacklist(const Entries &content) {
        device.write(userFile("black"), support::propertyList(content));
        openList("Blacklist");
    }

    [[nodiscard]] Entries document(const std::string &id = "black") const {
        return support::entriesOf(device, userFile(id));
    }

    [[nodiscard]] std::vector<std::string> texts(int section) const {
        std::vector<std::string> texts;
        for (const Row &row : rows(section))
            texts.push_back(row.text);
        return texts;
    }

    /// Adds a number by hand.
    void add(const std::string &number, const std::string &name) {
        person.tap("Add Number");
        person.type("Phone Number", number);
        person.type("Name", name);
        person.tap("Save");
    }
};
