// The delegate that the tests of alerts and sheets share.
#pragma once

#include "Stage.h"

/// Writes down what is clicked and dismissed.
@interface PlainAnswers : NSObject <UIAlertViewDelegate, UIActionSheetDelegate> {
@public
    uikit::Trace told;
}
@end
