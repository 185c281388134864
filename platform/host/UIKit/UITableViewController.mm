// UITableViewController. After Apple's UITableViewController Class Reference: the view is the table; it is
// loaded before it first appears, loses its selection each time it appears, and keeps the typed-into row
// above the keyboard.
#import "UIKit/TextInput.h"
#import <UIKit/UITableViewController.h>
#import <UIKit/UITextField.h>
#import <UIKit/UITextView.h>
#import <UIKit/UIWindow.h>

#include "UIKit/Metrics.h"

#include <utility>

struct UITableViewControllerState {
    UITableViewStyle style = UITableViewStylePlain;
    bool clearsSelection = true;
    bool hasAppeared = false;
    bool isShown = false;
    bool madeRoom = false; ///< for the keyboard
};

@implementation UITableViewController

- (id)init {
    return [self initWithStyle:UITableViewStylePlain];
}

- (id)initWithNibName:(NSString *)name bundle:(NSBundle *)bundle {
    if (!(self = [super initWithNibName:name bundle:bundle]))
        return nil;
    _tableControllerState = new UITableViewControllerState;
    NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
    for (NSString *comes in
         [NSArray arrayWithObjects:UIKeyboardWillShowNotification, UITextFieldTextDidBeginEditingNotification,
                                   UITextViewTextDidBeginEditingNotification, nil])
        [center addObserver:self selector:@selector(_hostMakeRoomForKeyboard) name:comes object:nil];
    [center addObserver:self
               selector:@selector(_hostTakeBackRoomForKeyboard)
                   name:UIKeyboardWillHideNotification
                 object:nil];
    return self;
}

- (id)initWithStyle:(UITableViewStyle)style {
    if ((self = [self initWithNibName:nil bundle:nil]))
        _tableControllerState->style = style;
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    delete _tableControllerState;
    [super dealloc];
}

- (void)loadView {
    UITableView *table = [[UITableView alloc] initWithFrame:CGRectMake(0, 0, 320, 480)
                                                      style:_tableControllerState->style];
    table.autoresizingMask = UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight;
    table.dataSource = self;
    table.delegate = self;
    self.view = table;
    [table release];
}

- (UITableView *)tableView {
    return static_cast<UITableView *>(self.view);
}

- (void)setTableView:(UITableView *)table {
    self.view = table;
}

- (BOOL)clearsSelectionOnViewWillAppear {
    return _tableControllerState->clearsSelection;
}

- (void)setClearsSelectionOnViewWillAppear:(BOOL)clears {
    _tableControllerState->clearsSelection = clears;
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    if (!_tableControllerState->hasAppeared)
        [self.tableView reloadData];
    else if (_tableControllerState->clearsSelection)
        [self.tableView selectRowAtIndexPath:nil
                                    animated:animated
                              scrollPosition:UITableViewScrollPositionNone];
    _tableControllerState->hasAppeared = true;
}

- (void)viewDidAppear:(BOOL)animated {
    [super viewDidAppear:animated];
    _tableControllerState->isShown = true;
    [self _hostMakeRoomForKeyboard];
}

- (void)viewWillDisappear:(BOOL)animated {
    [super viewWillDisappear:animated];
    _tableControllerState->isShown = false;
}

- (void)_hostSetRoomForKeyboard:(CGFloat)height {
    UITableView *table = self.tableView;
    UIEdgeInsets inset = table.contentInset;
    inset.bottom = height;
    table.contentInset = table.scrollIndicatorInsets = inset;
}

/// Brings the row that is typed into above the keyboard. Not before the page is shown: bars give it its
/// insets first.
- (void)_hostMakeRoomForKeyboard {
    UIView *input = host::focusedInput();
    if (!_tableControllerState->isShown || !input || ![input isDescendantOfView:self.tableView])
        return;
    _tableControllerState->madeRoom = true;
    [self _hostSetRoomForKeyboard:host::keyboardHeight];
    [self.tableView scrollRectToVisible:[input convertRect:input.bounds toView:self.tableView] animated:YES];
}

- (void)_hostTakeBackRoomForKeyboard {
    if (std::exchange(_tableControllerState->madeRoom, false))
        [self _hostSetRoomForKeyboard:0];
}

- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
    [super setEditing:editing animated:animated];
    [self.tableView setEditing:editing animated:animated];
}

- (NSInteger)tableView:(UITableView *)tableView numberOfRowsInSection:(NSInteger)section {
    return 0;
}

- (UITableViewCell *)tableView:(UITableView *)tableView cellForRowAtIndexPath:(NSIndexPath *)indexPath {
    return nil;
}

@end
