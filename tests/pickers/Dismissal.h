// How a modal page asks to be dismissed.
#pragma once

#import <UIKit/UIKit.h>

#include <objc/runtime.h>
#include <string>
#include <vector>

namespace dismissal {

inline std::vector<std::string> requests; ///< "animated and then" for one with motion and a completion block

inline void writeDown(id, SEL, BOOL animated, void (^completion)(void)) {
    requests.push_back(std::string(animated ? "animated" : "at once") + (completion ? " and then" : ""));
    if (completion)
        completion();
}

/// From now on, pages of this class write down how they ask to be dismissed, and stay.
inline void listenTo(Class cls) {
    requests.clear();
    const SEL dismiss = @selector(dismissViewControllerAnimated:completion:);
    const char *types = method_getTypeEncoding(class_getInstanceMethod(cls, dismiss));
    class_addMethod(cls, dismiss, reinterpret_cast<IMP>(writeDown), types);
}

} // namespace dismissal
