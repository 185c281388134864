// The keys of a settings page's property list, as the public format documentation names them.
#pragma once

#import <Foundation/NSString.h>

namespace host::key {

// a page
inline NSString *const title = @"title";
inline NSString *const items = @"items";
inline NSString *const entry = @"entry";

// any row
inline NSString *const id = @"id";
inline NSString *const label = @"label";
inline NSString *const cell = @"cell";
inline NSString *const cellClass = @"cellClass";
inline NSString *const height = @"height";
inline NSString *const enabled = @"enabled";
inline NSString *const alignment = @"alignment";
inline NSString *const icon = @"icon";
inline NSString *const hasIcon = @"hasIcon";
inline NSString *const iconImage = @"iconImage";
inline NSString *const requiredCapabilities = @"requiredCapabilities";
inline NSString *const isDestructive = @"isDestructive";
inline NSString *const hidesDisclosureIndicator = @"hidesDisclosureIndicator";
inline NSString *const alternateColors = @"alternateColors";
inline NSString *const controlLoading = @"control-loading";

// values
inline NSString *const domain = @"defaults";
inline NSString *const key = @"key";
inline NSString *const defaultValue = @"default";
inline NSString *const notification = @"PostNotification";
inline NSString *const negate = @"negate";
inline NSString *const value = @"value";

// what a row calls
inline NSString *const get = @"get";
inline NSString *const set = @"set";
inline NSString *const action = @"action";
inline NSString *const cancel = @"cancel";
inline NSString *const loadAction = @"loadAction";
inline NSString *const confirmation = @"confirmation";
inline NSString *const prompt = @"prompt";
inline NSString *const okTitle = @"okTitle";
inline NSString *const cancelTitle = @"cancelTitle";

// pages that a row opens
inline NSString *const detail = @"detail";
inline NSString *const customControllerClass = @"customControllerClass";
inline NSString *const pane = @"pane";
inline NSString *const bundle = @"bundle";
inline NSString *const bundlePath = @"bundlePath";
inline NSString *const isController = @"isController";
inline NSString *const overridePrincipalClass = @"overridePrincipalClass";
inline NSString *const internal = @"internal";
inline NSString *const lazyBundle = @"lazy-bundle";

// choices
inline NSString *const validValues = @"validValues";
inline NSString *const validTitles = @"validTitles";
inline NSString *const shortTitles = @"shortTitles";
inline NSString *const valuesDataSource = @"valuesDataSource";
inline NSString *const titlesDataSource = @"titlesDataSource";
inline NSString *const shortTitlesDataSource = @"shortTitlesDataSource";
inline NSString *const staticTextMessage = @"staticTextMessage";
inline NSString *const deferItemSelection = @"deferItemSelection";

// groups
inline NSString *const footerText = @"footerText";
inline NSString *const footerAlignment = @"footerAlignment";
inline NSString *const headerDetailText = @"headerDetailText";
inline NSString *const headerCellClass = @"headerCellClass";
inline NSString *const footerCellClass = @"footerCellClass";
inline NSString *const isRadioGroup = @"isRadioGroup";
inline NSString *const isStaticText = @"isStaticText";
inline NSString *const radioGroupChecked = @"radioGroupCheckedSpecifier";

// sliders
inline NSString *const min = @"min";
inline NSString *const max = @"max";
inline NSString *const showValue = @"showValue";
inline NSString *const isSegmented = @"isSegmented";
inline NSString *const segmentCount = @"segmentCount";
inline NSString *const isContinuous = @"isContinuous";
inline NSString *const leftImage = @"leftImage";
inline NSString *const rightImage = @"rightImage";

// text rows
inline NSString *const placeholder = @"placeholder";
inline NSString *const suffix = @"suffix";
inline NSString *const keyboard = @"keyboard";
inline NSString *const isNumeric = @"isNumeric";
inline NSString *const isDecimalPad = @"isDecimalPad";
inline NSString *const isIP = @"isIP";
inline NSString *const isURL = @"isURL";
inline NSString *const isEmail = @"isEmail";
inline NSString *const isEmailAddressing = @"isEmailAddressing";
inline NSString *const autoCaps = @"autoCaps";
inline NSString *const noAutoCorrect = @"noAutoCorrect";
inline NSString *const bestGuess = @"bestGuess";
inline NSString *const popOnReturn = @"textFieldShouldPopOnReturn";

} // namespace host::key
