#include "Preferences/HostConfirmation.h"

#include "host/SystemText.h"
#include "host/Text.h"
#include "Preferences/PSListController+Host.h"

@implementation HostConfirmation

- (instancetype)initWithPage:(PSListController *)page
                   specifier:(PSConfirmationSpecifier *)specifier
                       value:(id)value {
    self = [super init];
    if (self) {
        _page = page;
        _specifier = [specifier retain];
        _value = [value retain];
    }
    return self;
}

- (void)dealloc {
    [self abandon];
    [_specifier release];
    [_value release];
    [super dealloc];
}

- (id)value {
    return _value;
}

- (void)abandon {
    _page = nil;
    [_alert setDelegate:nil];
    [_sheet setDelegate:nil];
    _alert = nil;
    _sheet = nil;
}

- (void)ask {
    if ([_specifier isDestructive])
        [self askInSheet];
    else
        [self askInAlert];
}

- (NSString *)okTitle {
    return [_specifier okButton] ? [_specifier okButton] : host::string(host::systemText("OK"));
}

- (NSString *)cancelTitle {
    return [_specifier cancelButton] ? [_specifier cancelButton] : host::string(host::systemText("Cancel"));
}

- (void)askInAlert {
    _alert = [[[UIAlertView alloc] initWithTitle:[_specifier title]
                                         message:[_specifier prompt]
                                        delegate:self
                               cancelButtonTitle:[self cancelTitle]
                               otherButtonTitles:[self okTitle], nil] autorelease];
    [_alert show];
}

/// A sheet has one text: the question, below its heading where there is one.
- (void)askInSheet {
    NSString *heading = [_specifier title];
    NSString *question = [_specifier prompt];
    NSString *text = heading && question ? [NSString stringWithFormat:@"%@\n%@", heading, question]
                                         : (heading ? heading : question);
    _sheet = [[[UIActionSheet alloc] initWithTitle:text
                                          delegate:self
                                 cancelButtonTitle:[self cancelTitle]
                            destructiveButtonTitle:[self okTitle]
                                 otherButtonTitles:nil] autorelease];
    [_sheet showInView:[_page view]];
}

- (void)answered:(BOOL)accepted {
    [[self retain] autorelease];
    PSListController *page = [[_page retain] autorelease];
    _alert = nil;
    _sheet = nil;
    if (accepted)
        [page confirmationViewAcceptedForSpecifier:_specifier];
    else
        [page confirmationViewCancelledForSpecifier:_specifier];
    [page _hostAnswered:self];
}

- (void)alertView:(UIAlertView *)alertView clickedButtonAtIndex:(NSInteger)buttonIndex {
    [self answered:buttonIndex != [alertView cancelButtonIndex]];
}

- (void)actionSheet:(UIActionSheet *)actionSheet clickedButtonAtIndex:(NSInteger)buttonIndex {
    [self answered:buttonIndex != [actionSheet cancelButtonIndex]];
}

@end
