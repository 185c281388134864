// The labels of numbers in the user's language.
#pragma once

#import <Foundation/Foundation.h>

namespace zv {

/// Turns a stored label into the user's language; the result is owned by the caller, nil where there is none.
/// The address-book framework's ABAddressBookCopyLocalizedLabel, seen through Foundation's types.
using CopyLocalizedLabel = NSString *(*)(NSString *label);

/// Localizes each label once and lends the same string to all numbers that share it: a phone has a handful of
/// labels and thousands of numbers. Holds a fixed number of labels; where two fall on one place, the later
/// takes it.
class LabelTexts {
public:
    explicit LabelTexts(CopyLocalizedLabel copy) : m_copy(copy) {}
    ~LabelTexts();
    LabelTexts(const LabelTexts &) = delete;
    LabelTexts &operator=(const LabelTexts &) = delete;

    /// The text for a stored label in UTF-8, nil where there is none; valid until the next call. `label` may
    /// be null.
    [[nodiscard]] NSString *text(const char *label);

private:
    struct Place {
        char *label;
        NSString *text;
    };
    static constexpr size_t placeCount = 64;

    void fill(Place &place, const char *label);
    static void clear(Place &place);

    CopyLocalizedLabel m_copy;
    Place m_places[placeCount] = {};
};

} // namespace zv
