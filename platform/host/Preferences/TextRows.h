// What the items of text rows say about typing.
#pragma once

#import <Preferences/PSTextFieldSpecifier.h>

namespace host {

/// Takes keyboard, capitalisation, correction, placeholder and first guess from the specifier's properties.
void setUpTextRow(PSTextFieldSpecifier *row);

} // namespace host
