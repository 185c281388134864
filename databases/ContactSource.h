// The phone numbers of the address book, as records for the number pickers.
#pragma once

#include "databases/DisplayName.h"
#include "databases/LabelTexts.h"

namespace zv {

/// What the address-book framework says about names and labels.
struct ContactRules {
    NameOrder order;
    CopyLocalizedLabel copyLabel;
};

/// Appends a picker record to `records` for every labelled phone number in the address-book database at
/// `path` that has a dialable character, the contacts created last first: "number" in dialable form, "name"
/// and "type" (the localized label) where there are any. Nothing is merged: a number that two contacts have
/// makes two records.
///
/// Reads in one pass; whatever fails leaves the list as far as it was filled. Numbers without a label are
/// left out.
void appendContacts(const char *path, const ContactRules &rules, NSMutableArray *records);

} // namespace zv
