// The part of Core Foundation that a settings bundle needs: references to objects shared with Foundation, and
// the notify center that reaches other processes (Apple's Core Foundation reference).
#pragma once

#include <CoreFoundation/CFBase.h>
#include <CoreFoundation/CFNotificationCenter.h>
