#include "host/CommandLine.h"

#include <gtest/gtest.h>

namespace {

std::string confined(const std::string &command, const std::string &folder = "/dev1") {
    return host::confinedCommand(command, folder).value_or("refused");
}

TEST(CommandLine, ThePhonesPathsMoveBelowTheFolder) {
    EXPECT_EQ(confined("rm -f /var/mobile/a.plist"), "rm -f /dev1/var/mobile/a.plist");
    EXPECT_EQ(confined("/Library/Zelvora/zvtool -i 500"), "/dev1/Library/Zelvora/zvtool -i 500");
    EXPECT_EQ(confined("cp /etc/passwd /"), "cp /dev1/etc/passwd /dev1/");
}

TEST(CommandLine, PatternsStayPatterns) {
    EXPECT_EQ(confined("rm -f /var/a.*.plist"), "rm -f /dev1/var/a.*.plist");
}

TEST(CommandLine, TheFoldersSpecialCharactersAreEscaped) {
    EXPECT_EQ(confined("rm /var/*", "/a b'c*$"), "rm /a\\ b\\'c\\*\\$/var/*");
    EXPECT_EQ(confined("rm '/var/x y'", "/a b'c*$"), "rm '/a b'\\''c*$/var/x y'");
    EXPECT_EQ(confined("rm \"/var/x\"", "/a b'c*$\""), "rm \"/a b'c*\\$\\\"/var/x\"");
}

TEST(CommandLine, EveryCommandOfALineIsConfined) {
    EXPECT_EQ(confined("cat /var/a>/var/b;rm /c&&(ls /d)|sort /e\nrm /f"),
              "cat /dev1/var/a>/dev1/var/b;rm /dev1/c&&(ls /dev1/d)|sort /dev1/e\nrm /dev1/f");
}

TEST(CommandLine, PathsBehindAnEqualsSignMoveToo) {
    EXPECT_EQ(confined("dd if=/var/a of=/b"), "dd if=/dev1/var/a of=/dev1/b");
    EXPECT_EQ(confined("X=/var/a ls --sort=/c"), "X=/dev1/var/a ls --sort=/dev1/c");
}

TEST(CommandLine, SystemProgramsAreFoundByName) {
    EXPECT_EQ(confined("/bin/rm -f /bin/x; /usr/bin/killall y"), "rm -f /dev1/bin/x; killall y");
    EXPECT_EQ(confined("'/bin/rm' x"), "rm x");
}

TEST(CommandLine, TheNullDeviceStays) {
    EXPECT_EQ(confined("ls /var >/dev/null 2>&1"), "ls /dev1/var >/dev/null 2>&1");
}

TEST(CommandLine, SlashesInsideAWordAreNoAbsolutePath) {
    EXPECT_EQ(confined("sed s/a/b/ x/y"), "sed s/a/b/ x/y");
}

class Escaping : public testing::TestWithParam<const char *> {};

TEST_P(Escaping, IsRefused) {
    EXPECT_EQ(host::confinedCommand(GetParam(), "/dev1"), std::nullopt) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(All, Escaping,
                         testing::Values("rm $HOME/x", "rm \"$HOME\"", "rm `pwd`", "rm ~/x", "X=~/x",
                                         "X=a:~/x", "rm ../x", "rm /var/../../x", "rm a/..", "rm \".\"./x",
                                         "rm .\\./x", "rm /var/.*", "rm .?/x", "rm .[.]/x",
                                         "sh -c 'rm /etc/x'", "sh -c \"rm\t/etc/x\"", "eval 'x;/bin/y'",
                                         "cat <<E\nE", "tar -C/etc", "dd if=../x", "rm 'a", "rm \"a",
                                         "rm a\\", "X=/a=/b", "rm \\/etc", "rm \"\\/etc\"", "dd if=\\/etc"));

} // namespace
