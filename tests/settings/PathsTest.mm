// Where the phone's paths lie on this machine.
#include "support/TestDevice.h"

#include "host/Device.h"
#include "host/Text.h"
#include "settings/Paths.h"

#include <gtest/gtest.h>

namespace {

class Paths : public testing::Test {
protected:
    support::TestDevice phone;
};

TEST_F(Paths, LieBelowTheDeviceFolder) {
    EXPECT_EQ(host::utf8(zv::located(zv::path::areas)), host::device().folder + "/Library/Zelvora/Area");
}

TEST_F(Paths, NoPathLiesNowhere) {
    EXPECT_EQ(zv::located(nil), nil);
}

TEST_F(Paths, TextThatCannotBeAPathLiesNowhere) {
    EXPECT_EQ(zv::located(host::string(std::u16string{u'/', 0xD83D})), nil);
}

} // namespace
