// The page of a row that is edited by a pane: `detail` names this class, `pane` the view.
#pragma once

#import <Preferences/PSEditingPane.h>
#import <Preferences/PSViewController.h>

@interface PSDetailController : PSViewController {
    PSEditingPane *_pane;
    id _valueBefore;
}

/// Makes the pane, a plain PSEditingPane where the row names no other, and hands it the row and its value.
- (void)loadPane;
@property (nonatomic, retain) PSEditingPane *pane;
/// Where the pane lies on the page.
- (CGRect)paneFrame;

/// Stores the pane's value through the row's setter if it changed; done when the page leaves.
- (void)saveChanges;

@end
