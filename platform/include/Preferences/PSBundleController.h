// The principal class of a preference bundle that adds rows to another page instead of being one.
#pragma once

#import <Foundation/Foundation.h>

@class PSListController, PSSpecifier;

@interface PSBundleController : NSObject {
    PSListController *_parent; // not retained
}

- (instancetype)initWithParentListController:(PSListController *)parent;
- (PSListController *)parent;

/// The rows that stand on the parent's page in place of `specifier`; the base: none.
- (NSArray *)specifiersWithSpecifier:(PSSpecifier *)specifier;

/// Before the rows are asked for, and when the parent's page goes. The base does nothing.
- (void)load;
- (void)unload;

@end
