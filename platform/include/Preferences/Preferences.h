// The Preferences framework.
#pragma once

#import <Preferences/PSBundleController.h>
#import <Preferences/PSConfirmationSpecifier.h>
#import <Preferences/PSControlTableCell.h>
#import <Preferences/PSDetailController.h>
#import <Preferences/PSEditableTableCell.h>
#import <Preferences/PSEditingPane.h>
#import <Preferences/PSHeaderFooterView.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSListItemsController.h>
#import <Preferences/PSRootController.h>
#import <Preferences/PSSegmentTableCell.h>
#import <Preferences/PSSliderTableCell.h>
#import <Preferences/PSSpecifier.h>
#import <Preferences/PSSpinnerTableCell.h>
#import <Preferences/PSSwitchTableCell.h>
#import <Preferences/PSTableCell.h>
#import <Preferences/PSTextFieldSpecifier.h>
#import <Preferences/PSTextViewTableCell.h>
#import <Preferences/PSViewController.h>
