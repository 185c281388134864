#include "UIKit/PopupElement.h"

#include "host/Text.h"
#include "UIKit/TextElement.h"

#import <UIKit/UIColor.h>

#include <charconv>

namespace host {

std::u16string_view kept(NSString *text) {
    const NSUInteger length = [text length];
    if (length == 0)
        return {};
    NSMutableData *units = [NSMutableData dataWithLength:length * sizeof(unichar)];
    [text getCharacters:static_cast<unichar *>([units mutableBytes])];
    return {static_cast<const char16_t *>([units bytes]), length};
}

PopupParts partsOf(NSString *title, const ButtonTitles &titles, NSInteger cancel) {
    PopupParts parts{.title = kept(title), .cancel = cancel};
    for (NSString *each : titles)
        parts.buttons.push_back(kept(each));
    return parts;
}

void addText(Element &popup, NSString *text, const char *role, UIFont *font, const Rect &place) {
    if ([text length] == 0)
        return;
    Element element{.type = "StaticText", .label = utf8(text)};
    element.rect = place;
    element.attributes["role"] = std::string(role);
    describeText(element, font, [UIColor blackColor], NSTextAlignmentCenter);
    popup.children.push_back(std::move(element));
}

Element &addButton(Element &popup, NSString *title, std::size_t index, const char *role, const Rect &place) {
    Element element{.type = "Button", .label = utf8(title)};
    element.rect = place;
    element.number = popup.number;
    element.part = std::to_string(index);
    element.attributes["role"] = std::string(role);
    return popup.children.emplace_back(std::move(element));
}

NSInteger buttonIndex(const Gesture &gesture) {
    NSInteger index = -1;
    const char *begin = gesture.part.data(), *end = begin + gesture.part.size();
    if (gesture.kind != GestureKind::tap || std::from_chars(begin, end, index).ptr != end)
        return -1;
    return index;
}

} // namespace host
