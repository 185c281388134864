// The images: three scales of each, with exactly the pixels of their points.
#include "Resources.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace {

using namespace resources;

struct Pixels {
    unsigned width = 0, height = 0;
    bool operator==(const Pixels &) const = default;
};

std::ostream &operator<<(std::ostream &out, const Pixels &size) {
    return out << size.width << " by " << size.height;
}

unsigned bigEndian(const unsigned char *bytes) {
    return unsigned(bytes[0]) << 24 | unsigned(bytes[1]) << 16 | unsigned(bytes[2]) << 8 | bytes[3];
}

/// Size of a PNG as its header gives it (signature, then the chunk IHDR); 0 by 0 for anything else.
Pixels pixels(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    std::array<char, 24> head{};
    if (!file.read(head.data(), head.size()) || std::string(head.data(), 8) != "\x89PNG\r\n\x1a\n")
        return {};
    const auto *bytes = reinterpret_cast<const unsigned char *>(head.data());
    return {bigEndian(bytes + 16), bigEndian(bytes + 20)};
}

void expectThreeScales(const std::string &folder, const std::string &name, unsigned points) {
    const std::string stem = folder + "/" + name;
    EXPECT_EQ(pixels(stem + ".png"), (Pixels{points, points})) << name;
    EXPECT_EQ(pixels(stem + "@2x.png"), (Pixels{points * 2, points * 2})) << name;
    EXPECT_EQ(pixels(stem + "@3x.png"), (Pixels{points * 3, points * 3})) << name;
}

std::string stemOf(const std::string &file) {
    return std::filesystem::path(file).stem().string();
}

TEST(Images, EveryIconOfARowIsThere) {
    for (const auto &[name, item] : allItems())
        if (item.contains("icon"))
            expectThreeScales(ZV_BUNDLE_PATH, stemOf(text(item, "icon")), 29);
}

TEST(Images, TheBundleHasItsIcon) {
    expectThreeScales(ZV_BUNDLE_PATH, "icon", 29);
}

TEST(Images, EverySliderEndIsThere) {
    for (const auto &[name, item] : allItems())
        for (const char *end : {"leftImage", "rightImage"})
            if (item.contains(end))
                expectThreeScales(ZV_BUNDLE_PATH, stemOf(text(item, end)), 22);
}

TEST(Images, TheToolsButtonHasItsImage) {
    expectThreeScales(ZV_PRODUCT_PATH, "tools", 24);
}

TEST(Images, ThePickersHaveTheirMarks) {
    expectThreeScales(ZV_PRODUCT_PATH, "checked", 22);
    expectThreeScales(ZV_PRODUCT_PATH, "notchecked", 22);
}

TEST(Images, NoImageOfTheBundleIsUnused) {
    std::set<std::string> used{"icon"};
    for (const auto &[name, item] : allItems())
        for (const char *key : {"icon", "leftImage", "rightImage"})
            used.insert(stemOf(text(item, key)));
    for (const auto &name : namesIn(ZV_BUNDLE_PATH, ".png"))
        EXPECT_TRUE(used.contains(name.substr(0, name.find('@')))) << name;
}

// rsvg-convert leaves out what has an opacity of its own when it draws one element of a sheet; the opacity of
// a fill it draws.
TEST(Images, NoDrawingAsksForALayer) {
    for (const auto &sheet : namesIn(ZV_SOURCE_PATH "/resources/artwork", ".svg")) {
        std::ifstream file(ZV_SOURCE_PATH "/resources/artwork/" + sheet + ".svg");
        for (std::string line; std::getline(file, line);)
            EXPECT_EQ(line.find(" opacity="), std::string::npos) << sheet << ": " << line;
    }
}

TEST(Images, NoTwoRowsShareAnIcon) {
    std::set<std::string> icons;
    for (const auto &[name, item] : allItems())
        if (item.contains("icon"))
            EXPECT_TRUE(icons.insert(text(item, "icon")).second) << describe(name, item);
}

} // namespace
