// UITableViewController: a page that is a table. After Apple's UITableViewController Class Reference (iOS 8).
#pragma once

#import <UIKit/UITableView.h>
#import <UIKit/UIViewController.h>

@interface UITableViewController : UIViewController <UITableViewDataSource, UITableViewDelegate> {
@private
    struct UITableViewControllerState *_tableControllerState;
}

- (id)initWithStyle:(UITableViewStyle)style;

/// The controller's view. Data source and delegate are the controller unless set otherwise.
@property (nonatomic, retain) UITableView *tableView;
@property (nonatomic) BOOL clearsSelectionOnViewWillAppear;

@end
