// How the keyboard for a text field looks and helps (UITextInputTraits protocol reference).
#pragma once

#import <Foundation/Foundation.h>

typedef NS_ENUM(NSInteger, UITextAutocapitalizationType) {
    UITextAutocapitalizationTypeNone = 0,
    UITextAutocapitalizationTypeWords = 1,
    UITextAutocapitalizationTypeSentences = 2,
    UITextAutocapitalizationTypeAllCharacters = 3
};

typedef NS_ENUM(NSInteger, UITextAutocorrectionType) {
    UITextAutocorrectionTypeDefault = 0,
    UITextAutocorrectionTypeNo = 1,
    UITextAutocorrectionTypeYes = 2
};

typedef NS_ENUM(NSInteger, UIKeyboardType) {
    UIKeyboardTypeDefault = 0,
    UIKeyboardTypeASCIICapable = 1,
    UIKeyboardTypeNumbersAndPunctuation = 2,
    UIKeyboardTypeURL = 3,
    UIKeyboardTypeNumberPad = 4,
    UIKeyboardTypePhonePad = 5,
    UIKeyboardTypeNamePhonePad = 6,
    UIKeyboardTypeEmailAddress = 7,
    UIKeyboardTypeDecimalPad = 8
};

typedef NS_ENUM(NSInteger, UIReturnKeyType) {
    UIReturnKeyDefault = 0,
    UIReturnKeyGo = 1,
    UIReturnKeyGoogle = 2,
    UIReturnKeyJoin = 3,
    UIReturnKeyNext = 4,
    UIReturnKeyRoute = 5,
    UIReturnKeySearch = 6,
    UIReturnKeySend = 7,
    UIReturnKeyYahoo = 8,
    UIReturnKeyDone = 9
};

@protocol UITextInputTraits <NSObject>
@optional
@property (nonatomic) UITextAutocapitalizationType autocapitalizationType;
@property (nonatomic) UITextAutocorrectionType autocorrectionType;
@property (nonatomic) UIKeyboardType keyboardType;
@property (nonatomic) UIReturnKeyType returnKeyType;
@property (nonatomic, getter=isSecureTextEntry) BOOL secureTextEntry;
@end
