// PSSpecifier. Keys and their meanings follow the public format documentation of preference bundles; methods
// and instance variables the names that settings bundles use.
#import <Preferences/PSConfirmationSpecifier.h>
#import <Preferences/PSSpecifier.h>

#include "Preferences/Choices.h"
#include "Preferences/Keys.h"
#include "Preferences/Messages.h"

namespace key = host::key;

@implementation PSSpecifier

@synthesize name = _name, target, cellType, detailControllerClass, editPaneClass;
@synthesize getter, setter, action, cancel;
@synthesize buttonAction = _buttonAction, confirmationAction = _confirmationAction;
@synthesize confirmationCancelAction = _confirmationCancelAction,
            controllerLoadAction = _controllerLoadAction;
@synthesize values = _values, titleDictionary = _titleDict, shortTitleDictionary = _shortTitleDict;
@synthesize userInfo = _userInfo, properties = _properties;
@synthesize keyboardType, autoCapsType, autoCorrectionType, textFieldType;

+ (instancetype)preferenceSpecifierNamed:(NSString *)name
                                  target:(id)target
                                     set:(SEL)setter
                                     get:(SEL)getter
                                  detail:(Class)detailControllerClass
                                    cell:(int)cellType
                                    edit:(Class)editPaneClass {
    PSSpecifier *specifier = [[[self alloc] init] autorelease];
    [specifier setName:name];
    [specifier setTarget:target];
    [specifier setSetter:setter];
    [specifier setGetter:getter];
    [specifier setDetailControllerClass:detailControllerClass];
    [specifier setCellType:cellType];
    [specifier setEditPaneClass:editPaneClass];
    [specifier setProperty:name forKey:key::label];
    return specifier;
}

+ (instancetype)groupSpecifierWithName:(NSString *)name {
    return [self preferenceSpecifierNamed:name
                                   target:nil
                                      set:nullptr
                                      get:nullptr
                                   detail:Nil
                                     cell:PSGroupCell
                                     edit:Nil];
}

+ (instancetype)groupSpecifierWithID:(NSString *)identifier {
    PSSpecifier *group = [self groupSpecifierWithName:nil];
    [group setIdentifier:identifier];
    return group;
}

+ (instancetype)emptyGroupSpecifier {
    return [self groupSpecifierWithName:nil];
}

+ (instancetype)buttonSpecifierWithTitle:(NSString *)title
                                  target:(id)target
                                  action:(SEL)action
                        confirmationInfo:(NSDictionary *)confirmationInfo {
    const Class wanted = confirmationInfo ? [PSConfirmationSpecifier class] : self;
    PSSpecifier *button = [wanted preferenceSpecifierNamed:title
                                                    target:target
                                                       set:nullptr
                                                       get:nullptr
                                                    detail:Nil
                                                      cell:PSButtonCell
                                                      edit:Nil];
    [button setButtonAction:action];
    if (confirmationInfo)
        [static_cast<PSConfirmationSpecifier *>(button) setupWithDictionary:confirmationInfo];
    return button;
}

+ (instancetype)deleteButtonSpecifierWithName:(NSString *)name target:(id)target action:(SEL)action {
    PSSpecifier *button = [self buttonSpecifierWithTitle:name
                                                  target:target
                                                  action:action
                                        confirmationInfo:nil];
    [button setProperty:[NSNumber numberWithBool:YES] forKey:key::isDestructive];
    return button;
}

- (instancetype)init {
    self = [super init];
    if (self)
        _properties = [[NSMutableDictionary alloc] init];
    return self;
}

- (void)dealloc {
    [_name release];
    [_values release];
    [_titleDict release];
    [_shortTitleDict release];
    [_userInfo release];
    [_properties release];
    [super dealloc];
}

- (NSString *)identifier {
    for (NSString *name in @[ key::id, key::key, key::label ]) {
        if (NSString *text = host::textProperty(self, name))
            return text;
    }
    return nil;
}

- (void)setIdentifier:(NSString *)identifier {
    [self setProperty:identifier forKey:key::id];
}

- (id)propertyForKey:(NSString *)name {
    return name ? [_properties objectForKey:name] : nil;
}

- (void)setProperty:(id)value forKey:(NSString *)name {
    if (!value)
        [self removePropertyForKey:name];
    else if (name)
        [_properties setObject:value forKey:name];
}

- (void)removePropertyForKey:(NSString *)name {
    if (name)
        [_properties removeObjectForKey:name];
}

- (void)setValues:(NSArray *)values titles:(NSArray *)titles {
    [self setValues:values titles:titles shortTitles:nil];
}

- (void)setValues:(NSArray *)values titles:(NSArray *)titles shortTitles:(NSArray *)shortTitles {
    [self setValues:values titles:titles shortTitles:shortTitles usingLocalizedTitleSorting:NO];
}

- (void)setValues:(NSArray *)values
                        titles:(NSArray *)titles
                   shortTitles:(NSArray *)shortTitles
    usingLocalizedTitleSorting:(BOOL)sorted {
    [self setTitleDictionary:host::titlesOfValues(values, titles)];
    [self setShortTitleDictionary:host::titlesOfValues(values, shortTitles)];
    [self setValues:sorted ? host::sortedByTitle(values, _titleDict) : values];
}

- (void)loadValuesAndTitlesFromDataSource {
    NSArray *values = host::choices(self, key::validValues, key::valuesDataSource);
    [self setValues:values
             titles:host::choices(self, key::validTitles, key::titlesDataSource)
        shortTitles:host::choices(self, key::shortTitles, key::shortTitlesDataSource)];
}

- (void)setKeyboardType:(int)keyboard autoCaps:(int)autoCaps autoCorrection:(int)autoCorrection {
    [self setKeyboardType:keyboard];
    [self setAutoCapsType:autoCaps];
    [self setAutoCorrectionType:autoCorrection];
}

- (NSString *)description {
    return [NSString stringWithFormat:@"<%@ %p: %@ \"%@\">", [self class], self, [self identifier], _name];
}

@end
