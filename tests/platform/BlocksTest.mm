#import <Foundation/Foundation.h>

#include <Block.h>
#include <gtest/gtest.h>

namespace {

using Counter = int (^)(void);

Counter countingFrom(int start) {
    __block int count = start;
    return Block_copy(^{
        return ++count;
    });
}

TEST(Blocks, ACopyOutlivesTheFunctionThatMadeIt) {
    Counter counter = countingFrom(41);
    EXPECT_EQ(counter(), 42);
    EXPECT_EQ(counter(), 43);
    Block_release(counter);
}

TEST(Blocks, ACopyKeepsWhatItCapturesUntilItIsReleased) {
    NSObject *captured = [[[NSObject alloc] init] autorelease];
    void (^copy)(void) = Block_copy(^{
        (void)[captured self];
    });
    EXPECT_EQ([captured retainCount], 2u);
    Block_release(copy);
    EXPECT_EQ([captured retainCount], 1u);
}

TEST(Blocks, ACopyKeepsTheBlockThatItCaptures) {
    Counter inner = countingFrom(0);
    Counter outer = Block_copy(^{
        return inner();
    });
    Block_release(inner);
    EXPECT_EQ(outer(), 1);
    Block_release(outer);
}

} // namespace
