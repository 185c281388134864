// Opening preference bundles, as the Settings application does.
#include "host/Control.h"
#include "host/Screen.h"
#include "host/Text.h"
#include "Preferences/Messages.h"
#include "Preferences/PlainPage.h"
#include "Preferences/SettingsPage.h"
#include "UIKit/Popups.h"

#import <Preferences/PSRootController.h>
#import <Preferences/PSSpecifier.h>

namespace host {

namespace {

/// Settings itself; it lives as long as the process.
PSRootController *settings() {
    static PSRootController *root = nil;
    if (root)
        return root;
    HostSettingsPage *list = [[[HostSettingsPage alloc] init] autorelease];
    root = [[PSRootController alloc] initWithRootViewController:list];
    [list setRootController:root];
    setRootController(root);
    waitUntilIdle();
    return root;
}

HostSettingsPage *rootList() {
    return [[settings() viewControllers] objectAtIndex:0];
}

/// NSBundle takes absolute paths only.
NSString *absolute(NSString *path) {
    if ([path isAbsolutePath])
        return path;
    return [[[NSFileManager defaultManager] currentDirectoryPath] stringByAppendingPathComponent:path];
}

} // namespace

UIViewController *openBundle(NSString *path, std::string *reason) {
    path = absolute(path);
    BOOL folder = NO;
    if (![[NSFileManager defaultManager] fileExistsAtPath:path isDirectory:&folder] || !folder) {
        if (reason)
            *reason = "There is no bundle " + utf8(path) + ".";
        return nil;
    }
    UIViewController *page = nil;
    @autoreleasepool {
        closePages();
        PSSpecifier *row = [rootList() rowOfBundle:path];
        [rootList() performActionForSpecifier:row];
        page = [rootList() controllerForSpecifier:row];
        if (reason)
            *reason = utf8(textProperty(row, failureProperty));
        [rootList() showController:page animate:NO];
        waitUntilIdle();
    }
    return page; // owned by the stack of pages
}

void closePages() {
    @autoreleasepool {
        dropPopups();
        [settings() dismissViewControllerAnimated:NO completion:nil];
        [settings() popToRootViewControllerAnimated:NO];
        waitUntilIdle();
    }
}

} // namespace host
