// The names that text rows give their keyboards, as codes of UIKit.
#import <Preferences/PSSpecifier.h>
#import <UIKit/UITextInputTraits.h>

@implementation PSSpecifier (Typing)

+ (int)keyboardTypeForString:(NSString *)name {
    if ([name isEqualToString:@"numbers"])
        return UIKeyboardTypeNumberPad;
    return [name isEqualToString:@"phone"] ? UIKeyboardTypePhonePad : UIKeyboardTypeDefault;
}

+ (int)autoCapsTypeForString:(NSString *)name {
    if ([name isEqualToString:@"words"])
        return UITextAutocapitalizationTypeWords;
    if ([name isEqualToString:@"sentences"])
        return UITextAutocapitalizationTypeSentences;
    return [name isEqualToString:@"all"] ? UITextAutocapitalizationTypeAllCharacters
                                         : UITextAutocapitalizationTypeNone;
}

+ (int)autoCorrectionTypeForNumber:(NSNumber *)wanted {
    if (!wanted)
        return UITextAutocorrectionTypeDefault;
    return [wanted boolValue] ? UITextAutocorrectionTypeYes : UITextAutocorrectionTypeNo;
}

@end
