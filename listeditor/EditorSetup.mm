#include "listeditor/EditorSetup.h"

#include "listeditor/CallTime.h"
#include "listeditor/ListCells.h"
#include "listeditor/ListTexts.h"
#include "pickers/EditInfo.h"
#include "settings/Localization.h"
#include "settings/RecordKeys.h"

namespace zv {

namespace {

// Without a bundle there are no texts at all.
void setText(NSMutableDictionary *info, NSString *key, NSString *text, NSBundle *bundle) {
    NSString *shown = text ? localized(text, bundle) : nil;
    if (shown)
        [info setObject:shown forKey:key];
}

void copyMember(NSMutableDictionary *info, NSDictionary *rowRecord, NSString *key) {
    if (id value = [rowRecord objectForKey:key])
        [info setObject:value forKey:key];
}

void mark(NSMutableDictionary *info, NSString *key) {
    [info setObject:[NSNull null] forKey:key];
}

NSMutableDictionary *fieldInfo(ListKind kind, NSBundle *bundle) {
    NSMutableDictionary *info = [NSMutableDictionary dictionary];
    if (kind == ListKind::none)
        return info;
    const ListTexts texts = listTexts(kind);
    setText(info, editinfo::namePlaceholder, texts.namePlaceholder, bundle);
    setText(info, editinfo::numberPlaceholder, texts.numberPlaceholder, bundle);
    [info setObject:[NSNumber numberWithInteger:texts.numberKeyboard] forKey:editinfo::numberKeyboardType];
    return info;
}

} // namespace

NSString *editorTitle(ListKind kind, NSIndexPath *tapped, NSBundle *bundle) {
    const ListTexts texts = listTexts(kind);
    NSString *title = nil;
    if ([tapped section] == entrySection)
        title = texts.editTitle;
    else if ([tapped section] == actionSection && (!holdsPhoneNumbers(kind) || [tapped row] == addRow))
        title = texts.addTitle;
    return title ? localized(title, bundle) : nil;
}

NSMutableDictionary *editInfo(ListKind kind, NSDictionary *rowRecord, NSBundle *bundle) {
    NSMutableDictionary *info = fieldInfo(kind, bundle);
    copyMember(info, rowRecord, key::name);
    copyMember(info, rowRecord, key::number);
    if (!rowRecord)
        mark(info, editinfo::isNew);
    return info;
}

NSMutableDictionary *callTimeEditInfo(int seconds, NSBundle *bundle) {
    NSMutableDictionary *info = editInfo(ListKind::callTime, nil, bundle);
    NSString *minutes = [NSString stringWithFormat:@"%d", roundedUpMinutes(seconds)];
    [info setObject:minutes forKey:key::number];
    mark(info, editinfo::noName);
    return info;
}

} // namespace zv
