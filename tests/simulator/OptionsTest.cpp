#include "simulator/api/Options.h"

#include <gtest/gtest.h>

namespace sim {

TEST(TheCommandLine, IsEmptyForTheUsualPhone) {
    const CommandLine read = readCommandLine({});
    EXPECT_EQ(read.problem, "");
    EXPECT_EQ(read.options.systemVersion, "8.1");
    EXPECT_EQ(read.options.screen, "320x568");
}

TEST(TheCommandLine, DescribesAnotherPhone) {
    const Options options =
        readCommandLine({"--device", "d", "--ios", "7.1.2", "--language", "zh-Hans", "--region", "CN",
                         "--screen", "414x736", "--bundle", "b", "--port", "8080", "--contacts", "10",
                         "--calls", "0", "--no-open"})
            .options;
    EXPECT_EQ(options.device, "d");
    EXPECT_EQ(options.systemVersion, "7.1.2");
    EXPECT_EQ(options.language, "zh-Hans");
    EXPECT_EQ(options.region, "CN");
    EXPECT_EQ(screenSize(options.screen).scale, 3);
    EXPECT_EQ(options.bundles, "b");
    EXPECT_EQ(options.port, 8080);
    EXPECT_EQ(options.contacts, 10);
    EXPECT_EQ(options.calls, 0);
    EXPECT_FALSE(options.open);
}

TEST(TheCommandLine, SaysWhatIsWrongWithIt) {
    EXPECT_EQ(readCommandLine({"--nonsense"}).problem,
              "unknown option --nonsense; ./zv run --help lists the options");
    EXPECT_EQ(readCommandLine({"--ios"}).problem, "--ios needs a value: a system version such as 7.1.2");
    EXPECT_EQ(readCommandLine({"--port", "99999"}).problem,
              "--port cannot be \"99999\", it is a number up to 65535");
    for (const std::string &screen : screenNames())
        EXPECT_NE(readCommandLine({"--screen", "1x1"}).problem.find(screen), std::string::npos) << screen;
    for (const auto &[name, value] : {std::pair{"--ios", "eight"},
                                      {"--ios", "."},
                                      {"--language", "../etc"},
                                      {"--region", "china"},
                                      {"--screen", "1x1"},
                                      {"--port", "80a"},
                                      {"--calls", "-1"},
                                      {"--device", ""}})
        EXPECT_NE(readCommandLine({name, value}).problem, "") << name << " " << value;
}

TEST(TheCommandLine, CanBeWrittenForANewStart) {
    Options options;
    options.device = "my phone";
    options.systemVersion = "7.1.2";
    options.language = "de";
    options.bundles = "others";
    options.virtualTime = true;
    options.port = 5000;
    const CommandLine read = readCommandLine(commandLine(options));
    EXPECT_EQ(read.problem, "");
    EXPECT_EQ(read.options.device, "my phone");
    EXPECT_EQ(read.options.systemVersion, "7.1.2");
    EXPECT_EQ(read.options.language, "de");
    EXPECT_EQ(read.options.bundles, "others");
    EXPECT_TRUE(read.options.virtualTime);
    EXPECT_EQ(read.options.port, 5000);
}

} // namespace sim
