// What the leak checker must not report. Included once in every program that it may check.
#pragma once

/// libobjc keeps its tables until the process ends, and GNUstep what it asks the runtime once.
extern "C" const char *__lsan_default_suppressions() {
    return "leak:objc_malloc\nleak:class_copyMethodList\n";
}

extern "C" const char *__lsan_default_options() {
    return "print_suppressions=0";
}
