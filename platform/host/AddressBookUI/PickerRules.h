// Which system's way the people picker follows when the delegate has the methods of iOS 7.
#pragma once

namespace host {

enum class PickerRules {
    oldMethodsFirst, ///< a delegate that has the methods of iOS 7 is asked by them, whatever the system's
                     ///< version
    asOnIOS8,        ///< those methods are never called, as reported of iOS 8 devices
};

void setPickerRules(PickerRules rules);
[[nodiscard]] PickerRules pickerRules();

} // namespace host
