#include "Trace.h"

#include "host/Control.h"
#include "host/Screen.h"

@implementation TracedPage

+ (id)named:(const char *)name in:(uikit::Trace &)trace {
    return [[[self alloc] initNamed:name in:trace] autorelease];
}

- (id)initNamed:(const char *)name in:(uikit::Trace &)trace {
    if ((self = [super init])) {
        _name = name;
        _trace = &trace;
        [self setTitle:[NSString stringWithUTF8String:name]];
    }
    return self;
}

- (void)dealloc {
    [self write:"dealloc"];
    [super dealloc];
}

- (void)write:(const char *)what {
    _trace->push_back(_name + " " + what);
}

- (void)heard:(id)sender {
    [self write:"heard"];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    [self write:"didLoad"];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    [self write:"willAppear"];
}

- (void)viewDidAppear:(BOOL)animated {
    [super viewDidAppear:animated];
    [self write:"didAppear"];
}

- (void)viewWillDisappear:(BOOL)animated {
    [super viewWillDisappear:animated];
    [self write:"willDisappear"];
}

- (void)viewDidDisappear:(BOOL)animated {
    [super viewDidDisappear:animated];
    [self write:"didDisappear"];
}

@end

namespace uikit {

UINavigationController *showStack(NSArray *pages) {
    UINavigationController *navigation = [[[UINavigationController alloc] init] autorelease];
    [navigation setViewControllers:pages animated:NO];
    host::setRootController(navigation);
    host::waitUntilIdle();
    return navigation;
}

} // namespace uikit
