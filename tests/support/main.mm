// Runs the tests of one program, away from the person's own files.
#include "host/PrivateDefaults.h"
#include "support/LeakSuppressions.h"

#import <Foundation/Foundation.h>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    host::usePrivateDefaults();
    testing::InitGoogleTest(&argc, argv);
    @autoreleasepool {
        return RUN_ALL_TESTS();
    }
}
