// PSTextFieldSpecifier: the row of a text field.
#import <Preferences/PSTextFieldSpecifier.h>

@implementation PSTextFieldSpecifier

@synthesize bestGuess, placeholder = _placeholder;

- (void)dealloc {
    [_placeholder release];
    [super dealloc];
}

@end
