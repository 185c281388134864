// Every document that the bundle writes, as two implementations that are not ours understand it: Python's
// plistlib and libplist's program, plistutil.
#import "support/BundleTest.h"

#include <cstdio>

using support::text;

namespace {

constexpr const char *preferences = "/var/mobile/Library/Preferences";

// Beside each document: what plistutil makes of it, and what Python makes of it, in both forms. Ends badly
// where the two do not understand the same.
constexpr const char *exchange = R"(
import glob, plistlib, subprocess
for name in glob.glob("*.plist"):
    ours = plistlib.load(open(name, "rb"))
    assert ours, name
    for form in ("xml", "bin"):
        theirs = name + ".plistutil-" + form
        subprocess.run(["plistutil", "-i", name, "-f", form, "-o", theirs], check=True)
        assert plistlib.load(open(theirs, "rb")) == ours, theirs
    plistlib.dump(ours, open(name + ".python-xml", "wb"), fmt=plistlib.FMT_XML)
    plistlib.dump(ours, open(name + ".python-bin", "wb"), fmt=plistlib.FMT_BINARY)
)";

class WrittenDocuments : public support::BundleTest {
protected:
    void addEntry(const std::string &list, const std::string &action, const std::string &numberField,
                  const std::string &number, const std::string &nameField, const std::string &name) {
        person.tap(list);
        person.tap(action);
        person.type(numberField, number);
        person.type(nameField, name);
        person.tap("Save");
        person.back();
    }

    void addNumber(const std::string &list, const std::string &number, const std::string &name) {
        addEntry(list, "Add Number", "Phone Number", number, "Name", name);
    }

    [[nodiscard]] NSDictionary *documentAt(const std::string &name) const {
        return [NSDictionary dictionaryWithContentsOfFile:text(device.path(preferences + ("/" + name)))];
    }

    [[nodiscard]] bool exchangeAll() const {
        const std::string command = "cd '" + device.path(preferences) + "' && python3 -c '" + exchange + "'";
        FILE *pipe = popen(command.c_str(), "r");
        return pipe && pclose(pipe) == 0;
    }

    /// The documents that a person made by using every page.
    std::vector<std::string> makeDocuments() {
        device.write("/Library/Zelvora/Table/\u62fc\u97f3.txt", "");
        device.write("/Library/Zelvora/Area/\u4e2d\u56fd & <1>.txt", "");
        open();
        person.tap("Enable Zelvora");
        person.tap("Area Database");
        person.tap("\u4e2d\u56fd & <1>.txt");
        person.back();
        person.tap("Code Table");
        person.tap("\u62fc\u97f3");
        person.back();
        person.tap("Keypad");
        person.tap("Match Initials");
        person.back();
        addEntry("Area Prefixes", "Add Area", "Prefix", "+44 20", "Area", "London \"City\"");
        addEntry("Keypad Codes", "Add Code Table", "T9 Keyboard", "94", "Character", "\u4e2d");
        addNumber("Blacklist", "*#06#", "\U0001F600 <&> 'x' \u0416");
        addNumber("Blacklist", "10086", "");
        addNumber("Whitelist", "10010", "1234567890123456789\U0001F600"); // cut inside the last character
        addNumber("Priority List", "+33 (0)1", "L\u00e9a]]>");
        addNumber("Exclusion List", "110", "  \u8b66\u5bdf\t");
        return device.list(preferences);
    }
};

TEST_F(WrittenDocuments, AreReadByOthersAndTheirsAreReadByUs) {
    const std::vector<std::string> documents = makeDocuments();
    EXPECT_THAT(documents, testing::UnorderedElementsAre("zelvora.plist", "zelvora.keypad.plist",
                                                         "zelvora.area.plist", "zelvora.t9.plist",
                                                         "zelvora.black.plist", "zelvora.white.plist",
                                                         "zelvora.priority.plist", "zelvora.exclude.plist"));
    ASSERT_TRUE(exchangeAll());
    for (const std::string &name : documents) {
        NSDictionary *ours = documentAt(name);
        EXPECT_GT([ours count], 0U) << name;
        for (const char *theirs : {".plistutil-xml", ".plistutil-bin", ".python-xml", ".python-bin"})
            EXPECT_TRUE([documentAt(name + theirs) isEqual:ours]) << name << theirs;
    }
}

} // namespace
