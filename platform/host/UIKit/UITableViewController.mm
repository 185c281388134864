// UITableViewController. After Apple's UITableViewController Class Reference: the view is the table; it is
// loaded before it first appears, loses its selection each time it appears, and keeps the typed-into row
// above the keyboard.
#import <UIKit/UITableViewController.h>

#include "host/Retained.h"
#include "UIKit/KeyboardRoom.h"

struct UITableViewControllerState {
    UITableViewStyle style = UITableViewStylePlain;
    bool clearsSelection = true;
    bool hasAppeared = false;
    host::Retained<HostKeyboardRoom *> keyboardRoom;
};

@implementation UITableViewController

- (id)init {
    return [self initWithStyle:UITableViewStylePlain];
}

- (id)initWithNibName:(NSString *)name bundle:(NSBundle *)bundle {
    if (!(self = [super initWithNibName:name bundle:bundle]))
        return nil;
    _tableControllerState = new UITableViewControllerState;
    _tableControllerState->keyboardRoom = [[[HostKeyboardRoom alloc] init] autorelease];
    return self;
}

- (id)initWithStyle:(UITableViewStyle)style {
    if ((self = [self initWithNibName:nil bundle:nil]))
        _tableControllerState->style = style;
    return self;
}

- (void)dealloc {
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
    [_tableControllerState->keyboardRoom pageDidAppear:self.tableView];
}

- (void)viewWillDisappear:(BOOL)animated {
    [super viewWillDisappear:animated];
    [_tableControllerState->keyboardRoom pageWillDisappear];
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
