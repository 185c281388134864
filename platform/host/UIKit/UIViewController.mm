// Follows the UIViewController class reference and the View Controller Programming Guide. A class may
// override `view`, so everything here goes through it; whether a page is on the screen never hangs on a view
// that the base has loaded.
#include "host/Numbers.h"
#include "host/SystemText.h"
#include "host/Text.h"
#include "UIKit/UIView+State.h"
#include "UIKit/UIViewController+State.h"

#import <UIKit/UIColor.h>
#import <UIKit/UIScreen.h>
#import <UIKit/UIViewController.h>

@implementation UIViewController

- (id)init {
    return [self initWithNibName:nil bundle:nil];
}

- (id)initWithNibName:(NSString *)nibName bundle:(NSBundle *)nibBundle {
    if ((self = [super init])) {
        _controllerState = new UIViewControllerState;
        _controllerState->number = host::giveNumber(self);
        _controllerState->nibName = [[nibName copy] autorelease];
        _controllerState->nibBundle = nibBundle;
    }
    return self;
}

- (void)dealloc {
    if (!_controllerState) // init never ran
        return [super dealloc];
    host::forgetNumber(_controllerState->number);
    [self _hostForgetPresented];
    for (UIViewController *child in _controllerState->children.get())
        [child _hostSetParent:nil];
    delete _controllerState;
    [super dealloc];
}

- (struct UIViewControllerState *)_hostState {
    return _controllerState;
}

- (UIResponder *)nextResponder {
    return [[self view] superview];
}

- (NSString *)nibName {
    return _controllerState->nibName;
}

- (NSBundle *)nibBundle {
    return _controllerState->nibBundle;
}

- (UIView *)view {
    if (!_controllerState->view) {
        [self loadView];
        [self viewDidLoad];
    }
    return _controllerState->view;
}

- (void)setView:(UIView *)view {
    if (_controllerState->view)
        [_controllerState->view _hostState]->controllerNumber = 0;
    _controllerState->view = view;
    if (view)
        [view _hostState]->controllerNumber = _controllerState->number;
}

- (BOOL)isViewLoaded {
    return _controllerState->view.get() != nil;
}

- (void)loadView {
    UIView *view = [[[UIView alloc] initWithFrame:[[UIScreen mainScreen] bounds]] autorelease];
    [view setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [self setView:view];
}

- (void)viewDidLoad {
}

- (NSString *)title {
    return _controllerState->title;
}

/// The navigation item takes the title over; a later title of its own wins again.
- (void)setTitle:(NSString *)title {
    _controllerState->title = [[title copy] autorelease];
    [_controllerState->navigationItem setTitle:title];
}

- (void)viewWillAppear:(BOOL)animated {
}

- (void)viewDidAppear:(BOOL)animated {
}

- (void)viewWillDisappear:(BOOL)animated {
}

- (void)viewDidDisappear:(BOOL)animated {
}

- (void)viewWillLayoutSubviews {
}

- (void)viewDidLayoutSubviews {
}

- (BOOL)isEditing {
    return _controllerState->editing;
}

- (void)setEditing:(BOOL)editing {
    [self setEditing:editing animated:NO];
}

- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
    _controllerState->editing = editing;
    [self _hostShowEditing];
}

- (UIRectEdge)edgesForExtendedLayout {
    return _controllerState->edges;
}

- (void)setEdgesForExtendedLayout:(UIRectEdge)edges {
    _controllerState->edges = edges;
}

- (BOOL)automaticallyAdjustsScrollViewInsets {
    return _controllerState->adjustsInsets;
}

- (void)setAutomaticallyAdjustsScrollViewInsets:(BOOL)adjusts {
    _controllerState->adjustsInsets = adjusts;
}

- (CGSize)preferredContentSize {
    return _controllerState->preferredContentSize;
}

- (void)setPreferredContentSize:(CGSize)size {
    _controllerState->preferredContentSize = size;
}

- (void)_hostShowEditing {
    UIBarButtonItem *item = _controllerState->editButtonItem;
    const BOOL editing = _controllerState->editing;
    [item setTitle:host::string(host::systemText(editing ? "Done" : "Edit"))];
    [item setStyle:editing ? UIBarButtonItemStyleDone : UIBarButtonItemStylePlain];
}

@end
