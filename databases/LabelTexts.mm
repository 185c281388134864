#include "databases/LabelTexts.h"

#include "databases/Hash.h"

#include <stdlib.h>
#include <string.h>

namespace zv {

LabelTexts::~LabelTexts() {
    for (Place &place : m_places)
        clear(place);
}

NSString *LabelTexts::text(const char *label) {
    if (!label)
        return nil;
    Place &place = m_places[hashOf(label) % placeCount];
    if (!place.label || strcmp(place.label, label) != 0)
        fill(place, label);
    return place.text;
}

void LabelTexts::fill(Place &place, const char *label) {
    clear(place);
    NSString *stored = [[NSString alloc] initWithUTF8String:label];
    place.text = stored ? m_copy(stored) : nil;
    place.label = strdup(label);
    [stored release];
}

void LabelTexts::clear(Place &place) {
    free(place.label);
    [place.text release];
    place = {nullptr, nil};
}

} // namespace zv
