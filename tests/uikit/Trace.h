// Pages and delegates that write down what they are told.
#pragma once

#import <UIKit/UIKit.h>

#include <string>
#include <vector>

namespace uikit {

/// What was told, in order; "A willAppear".
using Trace = std::vector<std::string>;

/// Frees at its end what was autoreleased during its life. A fixture declares it after its trace, which the
/// pages write to to their last.
class Pool {
public:
    Pool() = default;
    ~Pool() { [m_pool drain]; }
    Pool(const Pool &) = delete;
    Pool &operator=(const Pool &) = delete;

private:
    NSAutoreleasePool *m_pool = [[NSAutoreleasePool alloc] init];
};

} // namespace uikit

/// Writes each call of its life into the trace, after its name.
@interface TracedPage : UIViewController {
    std::string _name;
    uikit::Trace *_trace;
}
+ (id)named:(const char *)name in:(uikit::Trace &)trace;
- (id)initNamed:(const char *)name in:(uikit::Trace &)trace;
- (void)write:(const char *)what;
/// An action that a page answers.
- (void)heard:(id)sender;
@end

namespace uikit {

/// A navigation controller with these pages, already in front.
UINavigationController *showStack(NSArray *pages);

} // namespace uikit
