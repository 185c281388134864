#include "Preferences/ItemTexts.h"

#include "Preferences/Keys.h"

#include <initializer_list>

namespace host {

namespace {

/// Texts, arrays of texts, and dictionaries of which some members are texts; anything else stays as it is.
id translatedValue(id value, const TextTable &table) {
    if ([value isKindOfClass:[NSString class]])
        return table(value);
    if (![value isKindOfClass:[NSArray class]])
        return value;
    NSMutableArray *texts = [NSMutableArray array];
    for (id text in value)
        [texts addObject:translatedValue(text, table)];
    return texts;
}

NSMutableDictionary *translatedKeys(NSDictionary *item, const TextTable &table,
                                    std::initializer_list<NSString *> keys) {
    NSMutableDictionary *result = [NSMutableDictionary dictionaryWithDictionary:item];
    for (NSString *key : keys) {
        if (id value = [item objectForKey:key])
            [result setObject:translatedValue(value, table) forKey:key];
    }
    return result;
}

} // namespace

NSString *TextTable::operator()(NSString *text) const {
    return text && bundle ? [bundle localizedStringForKey:text value:text table:name] : text;
}

NSMutableDictionary *translated(NSDictionary *item, const TextTable &table) {
    NSMutableDictionary *result = translatedKeys(
        item, table,
        {key::footerText, key::headerDetailText, key::staticTextMessage, key::placeholder, key::suffix,
         key::prompt, key::okTitle, key::cancelTitle, key::validTitles, key::shortTitles});
    NSDictionary *question = [item objectForKey:key::confirmation];
    if ([question isKindOfClass:[NSDictionary class]]) {
        [result setObject:translatedKeys(question, table,
                                         {key::title, key::prompt, key::okTitle, key::cancelTitle})
                   forKey:key::confirmation];
    }
    return result;
}

} // namespace host
