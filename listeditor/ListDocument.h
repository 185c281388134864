// The document of one list: a property list whose root dictionary maps each entry's number to its name.
#pragma once

#import <Foundation/Foundation.h>

namespace zv {

/// A list document on disk. Every change reads the whole document, changes one member and writes the whole
/// document atomically, so that the dialer sees the old or the new one, never a part. Results of writes are
/// ignored.
class ListDocument {
public:
    /// `userPath` and `defaultPath` are kept as they are, not retained; both may be nil: such a document
    /// reads as empty and is written nowhere.
    ListDocument(NSString *userPath, NSString *defaultPath)
        : m_userPath(userPath), m_defaultPath(defaultPath) {}

    /// Where the documents of the list with this id lie.
    static NSString *userPath(NSString *listId);
    static NSString *defaultPath(NSString *listId);

    /// The document's members, autoreleased, never nil. The default copy is read only where no user document
    /// exists; a user document that cannot be parsed reads as empty.
    [[nodiscard]] NSMutableDictionary *read() const;

    /// Sets an entry and writes; the result is the document just written.
    NSMutableDictionary *put(NSString *number, NSString *name) const;
    /// Removes the entry `oldNumber`, sets another and writes.
    NSMutableDictionary *replace(NSString *oldNumber, NSString *number, NSString *name) const;
    /// Removes an entry and writes.
    NSMutableDictionary *remove(NSString *number) const;

private:
    void write(NSDictionary *entries) const;

    NSString *m_userPath;
    NSString *m_defaultPath;
};

/// A new row record {"number", "name"}, owned by the caller.
NSDictionary *newRowRecord(NSString *number, NSString *name) NS_RETURNS_RETAINED;

/// Replaces the contents of `rows` by the row records of `entries`, in ascending order of their numbers by
/// `compare:`. A name that is no string, which only a damaged document holds, becomes "".
void rebuildRows(NSMutableArray *rows, NSDictionary *entries);

/// `text`, or its first 20 UTF-16 units where it is longer. The cut may split a surrogate pair.
NSString *cutEntryText(NSString *text);

} // namespace zv
