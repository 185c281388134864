#include "Stage.h"

#include "UIKit/UIView+Host.h"

@implementation Receiver

+ (id)receiver {
    return [[[self alloc] init] autorelease];
}

- (void)plain {
    told.emplace_back("plain");
}

- (void)sent:(id)from {
    told.emplace_back("sent");
    sender = from;
}

- (void)sent:(id)from event:(UIEvent *)event {
    told.emplace_back("sent with event");
    sender = from;
}

- (void)begun:(id)from {
    told.emplace_back("begun");
}

- (void)changed:(id)from {
    told.emplace_back("changed");
}

- (void)ended:(id)from {
    told.emplace_back("ended");
}

@end

namespace uikit {

Stage::Stage(host::DeviceOptions options) : device(std::move(options)) {
    showStack(@[ page ]);
    trace.clear();
}

void Stage::TearDown() {
    host::setRootController(nil);
}

void Stage::place(UIView *view, CGFloat y, CGFloat width, CGFloat height) {
    [view setFrame:CGRectMake(10, y, width, height)];
    [[page view] addSubview:view];
}

host::Element Stage::elementOf(UIView *view) {
    const host::Element screen = host::screen();
    const host::Element *found =
        screen.find([&](const host::Element &each) { return each.number == [view _hostNumber]; });
    return found ? *found : host::Element{};
}

host::Outcome Stage::perform(UIView *view, host::Gesture gesture) {
    gesture.number = [view _hostNumber];
    return host::perform(gesture);
}

host::Outcome Stage::tap(UIView *view) {
    return perform(view, {});
}

} // namespace uikit
