// One row, or the header of one group, of a settings page.
#pragma once

#import <Foundation/Foundation.h>

/// What kind of row a specifier makes: the `cell` names of a page's property list, in the order of their
/// codes.
typedef enum {
    PSGroupCell,
    PSLinkCell,
    PSLinkListCell,
    PSListItemCell,
    PSTitleValueCell,
    PSSliderCell,
    PSSwitchCell,
    PSStaticTextCell,
    PSEditTextCell,
    PSSegmentCell,
    PSGiantIconCell,
    PSGiantCell,
    PSSecureEditTextCell,
    PSButtonCell,
    PSEditTextViewCell,
    PSSpinnerCell
} PSCellType;

@interface PSSpecifier : NSObject {
@public
    id target; // not retained
    SEL getter;
    SEL setter;
    SEL action;
    SEL cancel;
    Class detailControllerClass;
    int cellType;
    Class editPaneClass;
    int keyboardType;
    int autoCapsType;
    int autoCorrectionType;
    int textFieldType;

@private
    NSString *_name;
    NSArray *_values;
    NSDictionary *_titleDict;
    NSDictionary *_shortTitleDict;
    id _userInfo;
    NSMutableDictionary *_properties;
    SEL _buttonAction;
    SEL _confirmationAction;
    SEL _confirmationCancelAction;
    SEL _controllerLoadAction;
}

/// The visible title, already localized. Property "label" keeps the text of the property list.
@property (nonatomic, retain) NSString *name;

/// Receives the getter, the setter, the actions and the data sources. Not retained.
@property (nonatomic, assign) id target;

/// A code of PSCellType.
@property (nonatomic, assign) int cellType;
@property (nonatomic, assign) Class detailControllerClass;
@property (nonatomic, assign) Class editPaneClass;

/// `- (id)value:(PSSpecifier *)specifier`; NULL: the row has no value.
@property (nonatomic, assign) SEL getter;
/// `- (void)set:(id)value specifier:(PSSpecifier *)specifier`; NULL: the value cannot be changed.
@property (nonatomic, assign) SEL setter;
/// `- (void)act:(PSSpecifier *)specifier`, or without an argument.
@property (nonatomic, assign) SEL action;
@property (nonatomic, assign) SEL cancel;
@property (nonatomic, assign) SEL buttonAction;
@property (nonatomic, assign) SEL confirmationAction;
@property (nonatomic, assign) SEL confirmationCancelAction;
/// Performed on the target just before the row's page is made.
@property (nonatomic, assign) SEL controllerLoadAction;

/// The choices in their order, and the title (or short title) of each value.
@property (nonatomic, retain) NSArray *values;
@property (nonatomic, retain) NSDictionary *titleDictionary;
@property (nonatomic, retain) NSDictionary *shortTitleDictionary;

@property (nonatomic, retain) id userInfo;

/// UIKeyboardType, UITextAutocapitalizationType and UITextAutocorrectionType of a text row.
@property (nonatomic, assign) int keyboardType;
@property (nonatomic, assign) int autoCapsType;
@property (nonatomic, assign) int autoCorrectionType;
@property (nonatomic, assign) int textFieldType;

/// All keys of the row's dictionary, those that the framework does not know included.
@property (nonatomic, retain) NSMutableDictionary *properties;

/// Property "id"; without it "key", then "label".
@property (nonatomic, copy) NSString *identifier;

+ (instancetype)preferenceSpecifierNamed:(NSString *)name
                                  target:(id)target
                                     set:(SEL)setter
                                     get:(SEL)getter
                                  detail:(Class)detailControllerClass
                                    cell:(int)cellType
                                    edit:(Class)editPaneClass;
+ (instancetype)groupSpecifierWithName:(NSString *)name;
+ (instancetype)groupSpecifierWithID:(NSString *)identifier;
+ (instancetype)emptyGroupSpecifier;
/// `confirmationInfo`: the `confirmation` dictionary of a button, or nil for one that does not ask.
+ (instancetype)buttonSpecifierWithTitle:(NSString *)title
                                  target:(id)target
                                  action:(SEL)action
                        confirmationInfo:(NSDictionary *)confirmationInfo;
+ (instancetype)deleteButtonSpecifierWithName:(NSString *)name target:(id)target action:(SEL)action;

- (id)propertyForKey:(NSString *)key;
/// A nil value removes the property.
- (void)setProperty:(id)value forKey:(NSString *)key;
- (void)removePropertyForKey:(NSString *)key;

/// Values are dictionary keys: equal values collapse in the titles. Surplus values or titles are left out of
/// them.
- (void)setValues:(NSArray *)values titles:(NSArray *)titles;
- (void)setValues:(NSArray *)values titles:(NSArray *)titles shortTitles:(NSArray *)shortTitles;
- (void)setValues:(NSArray *)values
                        titles:(NSArray *)titles
                   shortTitles:(NSArray *)shortTitles
    usingLocalizedTitleSorting:(BOOL)sorted;

/// Asks the target's `valuesDataSource`, `titlesDataSource` and `shortTitlesDataSource` again. Titles from a
/// data source are shown as they are.
- (void)loadValuesAndTitlesFromDataSource;

- (void)setKeyboardType:(int)keyboardType autoCaps:(int)autoCaps autoCorrection:(int)autoCorrection;

@end

/// What the names in a property list mean to UIKit.
@interface PSSpecifier (Typing)

/// UIKeyboardType of "numbers" and "phone", 0 for anything else.
+ (int)keyboardTypeForString:(NSString *)name;
/// UITextAutocapitalizationType of "words", "sentences" and "all", 0 for anything else.
+ (int)autoCapsTypeForString:(NSString *)name;
/// UITextAutocorrectionType for "corrections wanted": 0 default for nil, 1 no, 2 yes.
+ (int)autoCorrectionTypeForNumber:(NSNumber *)wanted;

@end
