#include "Stage.h"

/// Writes down the notifications it is sent.
@interface NotificationListener : NSObject {
@public
    uikit::Trace told;
    CGRect end; ///< of the keyboard, as told last
}
- (id)initFor:(NSArray *)names;
@end

@implementation NotificationListener

- (id)initFor:(NSArray *)names {
    if ((self = [super init])) {
        for (NSString *name in names)
            [[NSNotificationCenter defaultCenter] addObserver:self
                                                     selector:@selector(note:)
                                                         name:name
                                                       object:nil];
    }
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [super dealloc];
}

- (void)note:(NSNotification *)notification {
    told.emplace_back([[notification name] UTF8String]);
    end = [[[notification userInfo] objectForKey:UIKeyboardFrameEndUserInfoKey] CGRectValue];
}

@end

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Keyboard : public uikit::Stage {
protected:
    Keyboard() {
        place(field);
        place(other, 200);
    }

    UITextField *field = [[[UITextField alloc] init] autorelease];
    UITextField *other = [[[UITextField alloc] init] autorelease];
    NotificationListener *listener = [[[NotificationListener alloc] initFor:@[
        UIKeyboardWillShowNotification, UIKeyboardDidShowNotification, UIKeyboardWillHideNotification,
        UIKeyboardDidHideNotification
    ]] autorelease];
};

TEST_F(Keyboard, ComesWithTheFocusAndGoesWithIt) {
    (void)tap(field);
    EXPECT_THAT(listener->told,
                ElementsAre("UIKeyboardWillShowNotification", "UIKeyboardDidShowNotification"));
    EXPECT_TRUE(CGRectEqualToRect(listener->end, CGRectMake(0, 352, 320, 216)));
    listener->told.clear();
    [field resignFirstResponder];
    host::waitUntilIdle();
    EXPECT_THAT(listener->told,
                ElementsAre("UIKeyboardWillHideNotification", "UIKeyboardDidHideNotification"));
    EXPECT_EQ(listener->end.origin.y, 568);
}

TEST_F(Keyboard, StaysWhereItIsFromFieldToField) {
    (void)tap(field);
    listener->told.clear();
    (void)tap(other);
    EXPECT_THAT(listener->told, IsEmpty());
    EXPECT_EQ(host::screen().all("Keyboard").front()->rect, (host::Rect{0, 352, 320, 216}));
}

} // namespace
