// An empty page on a phone, to put views on, and somebody to be told of actions.
#pragma once

#include "Trace.h"

#include "host/Control.h"
#include "host/Screen.h"
#include "support/Person.h"
#include "support/TestDevice.h"

#include <gmock/gmock.h>

/// A target that writes down the actions it is sent.
@interface Receiver : NSObject {
@public
    uikit::Trace told;
    id sender; ///< of the last action; not retained
}
+ (id)receiver;
- (void)plain;
- (void)sent:(id)from;
- (void)sent:(id)from event:(UIEvent *)event;
- (void)begun:(id)from;
- (void)changed:(id)from;
- (void)ended:(id)from;
@end

namespace uikit {

class Stage : public testing::Test {
protected:
    explicit Stage(host::DeviceOptions options = {});
    void TearDown() override;

    /// Adds `view` to the page in front, with this frame.
    void place(UIView *view, CGFloat y = 100, CGFloat width = 200, CGFloat height = 40);
    /// The element of `view`; without a type when it is not on the screen.
    [[nodiscard]] static host::Element elementOf(UIView *view);
    [[nodiscard]] static host::Outcome perform(UIView *view, host::Gesture gesture);
    [[nodiscard]] static host::Outcome tap(UIView *view);

    support::TestDevice device;
    support::Person person;
    Trace trace;
    Pool pool;
    Receiver *receiver = [Receiver receiver];
    TracedPage *page = [TracedPage named:"Page" in:trace];
};

} // namespace uikit
