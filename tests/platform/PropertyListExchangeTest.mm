// Documents pass between the platform and two independent implementations: Python's plistlib and libplist,
// the latter as a library and as its program, plistutil.
#include "Foundation/PropertyList.h"
#include "host/FileContent.h"
#include "host/Text.h"
#include "support/TemporaryFolder.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <plist/plist.h>

namespace {

NSDictionary *sample() {
    NSMutableDictionary *many = [NSMutableDictionary dictionary];
    for (int i = 0; i < 3000; ++i)
        [many setObject:[NSString stringWithFormat:@"Name %d \u4e2d", i]
                 forKey:[NSString stringWithFormat:@"+1555%05d", i]];
    return @{
        @"" : @"",
        @"text" :
            @"<a> & \"b\" 'c' \\U4e2d \\n\n\t \u00e9\u4e2d\u6587\U0001F600\U0001F468\u200D\U0001F469 \uFFFD",
        @"long" : [@"" stringByPaddingToLength:100000 withString:@"x\u4e2d\U0001F600" startingAtIndex:0],
        @"\U0001F600" : @"emoji key",
        @"numbers" : @[ @0, @255, @256, @65536, @-1, @(LLONG_MAX), @(LLONG_MIN), @0.1, @1e300, @-0.5 ],
        @"truth" : @[ [NSNumber numberWithBool:YES], [NSNumber numberWithBool:NO] ],
        @"date" : [NSDate dateWithTimeIntervalSince1970:1425643201],
        @"data" : [@"some data of more than one line: "
                   @"0123456789012345678901234567890123456789012345678901234567890123456789"
            dataUsingEncoding:NSUTF8StringEncoding],
        @"nested" : @[ @[ @[], @{} ],
                       @{@"a" : @{@"b" : @""}} ],
        @"many" : many,
    };
}

NSDictionary *controlCharacters() {
    const std::u16string units = u"a\x01\x02\x08\x0B\x0C\x0E\x1F\x7F\r\nb";
    return @{@"control" : host::string(units), host::string(units) : @"key"};
}

class PropertyListExchange : public testing::Test {
protected:
    support::TemporaryFolder folder;

    void write(id root) {
        ASSERT_TRUE(host::replaceFile(folder.file("ours"), host::propertyListDocument(root).value()));
    }

    void expectRead(const char *name, id expected) {
        id read = host::propertyListOfFile(host::string(folder.file(name)));
        EXPECT_TRUE([read isEqual:expected]) << name;
    }

    // True when the program ended well.
    bool run(const std::string &line) {
        FILE *pipe = popen(("cd '" + folder.path().string() + "' && " + line).c_str(), "r");
        return pipe && pclose(pipe) == 0;
    }

    bool python(const std::string &program) { return run("python3 -c '" + program + "'"); }
};

TEST_F(PropertyListExchange, PythonReadsOursAndWeReadItsXMLAndBinary) {
    write(sample());
    ASSERT_TRUE(python("import plistlib\n"
                       "root = plistlib.load(open(\"ours\", \"rb\"))\n"
                       "assert root[\"text\"].startswith(\"<a> & \")\n"
                       "plistlib.dump(root, open(\"xml\", \"wb\"), fmt=plistlib.FMT_XML)\n"
                       "plistlib.dump(root, open(\"binary\", \"wb\"), fmt=plistlib.FMT_BINARY)\n"));
    expectRead("xml", sample());
    expectRead("binary", sample());
}

TEST_F(PropertyListExchange, OurDocumentIsPythonsByteForByte) {
    NSMutableDictionary *root = [NSMutableDictionary dictionaryWithDictionary:sample()];
    // Apple writes reals with 17 digits and quotation marks as they are; Python does neither.
    [root removeObjectForKey:@"numbers"];
    [root removeObjectForKey:@"text"];
    write(root);
    EXPECT_TRUE(python("import plistlib\n"
                       "ours = open(\"ours\", \"rb\").read()\n"
                       "theirs = plistlib.dumps(plistlib.loads(ours), sort_keys=False)\n"
                       "assert ours == theirs\n"));
}

TEST_F(PropertyListExchange, ControlCharactersComeThroughPythonsBinary) {
    ASSERT_TRUE(python("import plistlib\n"
                       "text = \"a\\x01\\x02\\x08\\x0B\\x0C\\x0E\\x1F\\x7F\\r\\nb\"\n"
                       "plistlib.dump({\"control\": text, text: \"key\"}, open(\"binary\", \"wb\"), "
                       "fmt=plistlib.FMT_BINARY)\n"));
    expectRead("binary", controlCharacters());
}

// The document as libplist understands it, written by it in both forms.
void expectThroughLibplist(id root) {
    const std::string document = host::propertyListDocument(root).value();
    plist_t tree = nullptr;
    plist_from_xml(document.data(), static_cast<std::uint32_t>(document.size()), &tree);
    ASSERT_NE(tree, nullptr);
    char *bytes = nullptr;
    std::uint32_t size = 0;
    plist_to_xml(tree, &bytes, &size);
    EXPECT_TRUE([host::propertyList({bytes, size}) isEqual:root]);
    plist_to_xml_free(bytes);
    bytes = nullptr;
    plist_to_bin(tree, &bytes, &size);
    EXPECT_TRUE([host::propertyList({bytes, size}) isEqual:root]);
    plist_to_bin_free(bytes);
    plist_free(tree);
}

TEST_F(PropertyListExchange, PlistutilReadsOursAndWeReadItsXMLAndBinary) {
    for (id root : {(id)sample(), (id)controlCharacters()}) {
        write(root);
        for (const char *form : {"xml", "bin"}) {
            ASSERT_TRUE(run(std::string("plistutil -i ours -f ") + form + " -o " + form));
            expectRead(form, root);
        }
    }
}

TEST_F(PropertyListExchange, LibplistReadsOursAndWeReadItsXMLAndBinary) {
    expectThroughLibplist(sample());
}

TEST_F(PropertyListExchange, ControlCharactersComeThroughLibplist) {
    expectThroughLibplist(controlCharacters());
}

} // namespace
