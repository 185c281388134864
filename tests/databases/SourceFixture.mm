#include "SourceFixture.h"

namespace sources {

namespace {

std::string memberText(NSDictionary *record, NSString *key) {
    NSString *text = [record objectForKey:key];
    return text ? [text UTF8String] : "-";
}

} // namespace

std::string recordText(NSDictionary *record) {
    return memberText(record, @"number") + "|" + memberText(record, @"name") + "|" +
           memberText(record, @"type");
}

Texts recordTexts(NSArray *records) {
    Texts texts;
    for (NSDictionary *record in records)
        texts.push_back(recordText(record));
    return texts;
}

NSString *copyPlainLabel(NSString *label) {
    if ([label isEqualToString:@"none"])
        return nil;
    if (![label hasPrefix:@"_$!<"])
        return [label copy];
    NSString *inner = [label substringWithRange:NSMakeRange(4, [label length] - 8)];
    return [[inner lowercaseString] copy];
}

SourceTest::SourceTest() {
    [NSTimeZone setDefaultTimeZone:[NSTimeZone timeZoneWithName:@"UTC"]];
}

Texts SourceTest::contacts(const zv::ContactRules &rules) const {
    NSMutableArray *records = [NSMutableArray array];
    zv::appendContacts(m_addressBook.c_str(), rules, records);
    return recordTexts(records);
}

Texts SourceTest::recentCalls(zv::CallHistorySchema schema) const {
    NSMutableArray *records = [NSMutableArray array];
    zv::appendContacts(m_addressBook.c_str(), byFirstName, records);
    zv::replaceWithRecentCalls(records, m_callHistory.c_str(), schema, now);
    return recordTexts(records);
}

} // namespace sources
