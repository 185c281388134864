#include "listeditor/ListDocument.h"

#import "databases/ZVPickerRecord.h"
#include "listeditor/SortedKeys.h"
#include "settings/Paths.h"

namespace zv {

namespace {

bool exists(NSString *path) {
    return path && [[NSFileManager defaultManager] fileExistsAtPath:path];
}

NSMutableDictionary *parse(NSString *path) {
    return [NSMutableDictionary dictionaryWithContentsOfFile:path];
}

} // namespace

NSString *ListDocument::userPath(NSString *listId) {
    return located([NSString stringWithFormat:path::listDocument, listId]);
}

NSString *ListDocument::defaultPath(NSString *listId) {
    return located([NSString stringWithFormat:path::defaultList, listId]);
}

NSMutableDictionary *ListDocument::read() const {
    NSMutableDictionary *entries = nil;
    if (exists(m_userPath))
        entries = parse(m_userPath);
    else if (exists(m_defaultPath))
        entries = parse(m_defaultPath);
    return entries ? entries : [NSMutableDictionary dictionary];
}

void ListDocument::write(NSDictionary *entries) const {
    [entries writeToFile:m_userPath atomically:YES];
}

NSMutableDictionary *ListDocument::put(NSString *number, NSString *name) const {
    NSMutableDictionary *entries = read();
    [entries setObject:name forKey:number];
    write(entries);
    return entries;
}

NSMutableDictionary *ListDocument::replace(NSString *oldNumber, NSString *number, NSString *name) const {
    NSMutableDictionary *entries = read();
    [entries removeObjectForKey:oldNumber];
    [entries setObject:name forKey:number];
    write(entries);
    return entries;
}

NSMutableDictionary *ListDocument::remove(NSString *number) const {
    NSMutableDictionary *entries = read();
    [entries removeObjectForKey:number];
    write(entries);
    return entries;
}

NSDictionary *newRowRecord(NSString *number, NSString *name) {
    return [[ZVPickerRecord alloc] initWithNumber:number name:name type:nil];
}

void rebuildRows(NSMutableArray *rows, NSDictionary *entries) {
    [rows removeAllObjects];
    const SortedKeys numbers(entries);
    for (NSUInteger index = 0; index < numbers.count(); ++index) {
        NSString *number = numbers[index];
        id name = [entries objectForKey:number];
        NSDictionary *row = newRowRecord(number, [name isKindOfClass:[NSString class]] ? name : @"");
        [rows addObject:row];
        [row release];
    }
}

NSString *cutEntryText(NSString *text) {
    constexpr NSUInteger longest = 20;
    return [text length] > longest ? [text substringToIndex:longest] : text;
}

} // namespace zv
