#include "Stage.h"

#include <fstream>

namespace {

/// The beginning of a PNG file of this size, as far as its size is told.
std::string png(std::uint32_t width, std::uint32_t height) {
    std::string bytes("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    for (const std::uint32_t number : {width, height}) {
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes += static_cast<char>(number >> shift);
    }
    bytes += std::string("\x08\x06\0\0\0", 5);
    std::uint32_t sum = 0xFFFFFFFF;
    for (std::size_t i = 12; i < bytes.size(); i++) {
        sum ^= static_cast<unsigned char>(bytes[i]);
        for (int bit = 0; bit < 8; bit++)
            sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320 : 0);
    }
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(~sum >> shift);
    return bytes;
}

class Image : public uikit::Stage {
protected:
    explicit Image(double scale = 2) : uikit::Stage({.scale = scale}) {}

    UIImage *load(const char *path) {
        return [UIImage imageWithContentsOfFile:[NSString stringWithUTF8String:device.path(path).c_str()]];
    }
};

class ImageAt3x : public Image {
protected:
    ImageAt3x() : Image(3) {}
};

class ImageAt1x : public Image {
protected:
    ImageAt1x() : Image(1) {}
};

TEST_F(Image, HasTheSizeOfItsFile) {
    device.write("/Library/a.png", png(24, 12));
    EXPECT_TRUE(CGSizeEqualToSize([load("/Library/a.png") size], CGSizeMake(24, 12)));
    EXPECT_EQ([load("/Library/a.png") scale], 1);
}

TEST_F(Image, ATwoFoldScreenTakesTheTwoFoldFile) {
    device.write("/Library/a.png", png(24, 24));
    device.write("/Library/a@2x.png", png(50, 50));
    device.write("/Library/a@3x.png", png(99, 99));
    EXPECT_TRUE(CGSizeEqualToSize([load("/Library/a.png") size], CGSizeMake(25, 25)));
    EXPECT_EQ([load("/Library/a.png") scale], 2);
}

TEST_F(Image, TheTwoFoldFileAloneIsEnough) {
    device.write("/Library/a@2x.png", png(50, 50));
    EXPECT_EQ([load("/Library/a.png") scale], 2);
}

TEST_F(Image, AFileForPhonesIsPreferred) {
    device.write("/Library/a@2x.png", png(50, 50));
    device.write("/Library/a@2x~iphone.png", png(60, 60));
    EXPECT_TRUE(CGSizeEqualToSize([load("/Library/a.png") size], CGSizeMake(30, 30)));
}

TEST_F(Image, ANameWithAScaleIsTakenAsItIs) {
    device.write("/Library/a@3x.png", png(90, 90));
    EXPECT_EQ([load("/Library/a@3x.png") scale], 3);
    EXPECT_TRUE(CGSizeEqualToSize([load("/Library/a@3x.png") size], CGSizeMake(30, 30)));
}

TEST_F(ImageAt3x, AThreeFoldScreenTakesTheThreeFoldFileThenThePlainOne) {
    device.write("/Library/a.png", png(24, 24));
    EXPECT_EQ([load("/Library/a.png") scale], 1);
    device.write("/Library/a@3x.png", png(90, 90));
    EXPECT_EQ([load("/Library/a.png") scale], 3);
}

TEST_F(ImageAt1x, APlainScreenTakesThePlainFile) {
    device.write("/Library/a@2x.png", png(50, 50));
    EXPECT_EQ(load("/Library/a.png"), nil);
    device.write("/Library/a.png", png(24, 24));
    EXPECT_EQ([load("/Library/a.png") scale], 1);
}

TEST_F(Image, ThereIsNoneWithoutAFile) {
    EXPECT_EQ(load("/Library/missing.png"), nil);
    EXPECT_EQ([UIImage imageWithContentsOfFile:nil], nil);
    EXPECT_EQ([UIImage imageWithContentsOfFile:@""], nil);
    EXPECT_EQ([UIImage imageNamed:nil], nil);
    EXPECT_EQ([UIImage imageNamed:@"missing"], nil);
    EXPECT_EQ([UIImage imageWithData:nil], nil);
}

TEST_F(Image, ThereIsNoneOfADamagedFile) {
    const std::string whole = png(24, 24);
    std::string flipped = whole;
    flipped[17] ^= 1;
    for (const std::string &bytes :
         {std::string(), std::string("no picture"), whole.substr(0, 20), flipped, png(0, 5)}) {
        device.write("/Library/a.png", bytes);
        EXPECT_EQ(load("/Library/a.png"), nil) << bytes.size();
    }
}

TEST_F(Image, AFolderIsNoImage) {
    device.makeFolder("/Library/a.png");
    EXPECT_EQ(load("/Library/a.png"), nil);
}

TEST_F(Image, IsReadAnewEachTime) {
    device.write("/Library/a.png", png(24, 24));
    (void)load("/Library/a.png");
    device.write("/Library/a.png", png(48, 48));
    EXPECT_TRUE(CGSizeEqualToSize([load("/Library/a.png") size], CGSizeMake(48, 48)));
}

TEST_F(Image, AnImageViewShowsTheFileItCameFrom) {
    device.write("/Library/a@2x.png", png(44, 44));
    UIImageView *view = [[[UIImageView alloc] initWithImage:load("/Library/a.png")] autorelease];
    EXPECT_TRUE(CGSizeEqualToSize([view frame].size, CGSizeMake(22, 22)));
    place(view);
    EXPECT_EQ(elementOf(view).type, "Image");
    EXPECT_EQ(elementOf(view).text("image"), device.path("/Library/a@2x.png"));
    EXPECT_EQ(elementOf(view).amount("scale"), 2);
}

TEST_F(Image, AnImageViewWithoutAnImageShowsNothing) {
    UIImageView *view = [[[UIImageView alloc] initWithImage:nil] autorelease];
    place(view);
    EXPECT_EQ(elementOf(view).type, "");
    EXPECT_TRUE(CGSizeEqualToSize([view sizeThatFits:CGSizeMake(100, 100)], CGSizeZero));
}

TEST_F(Image, AHighlightedImageViewShowsItsOtherImage) {
    device.write("/Library/a.png", png(1, 1));
    device.write("/Library/b.png", png(1, 1));
    UIImageView *view = [[[UIImageView alloc] initWithImage:load("/Library/a.png")
                                           highlightedImage:load("/Library/b.png")] autorelease];
    place(view);
    [view setHighlighted:YES];
    EXPECT_EQ(elementOf(view).text("image"), device.path("/Library/b.png"));
}

TEST_F(Image, AnActivityIndicatorShowsWhileItTurns) {
    UIActivityIndicatorView *view = [[[UIActivityIndicatorView alloc]
        initWithActivityIndicatorStyle:UIActivityIndicatorViewStyleGray] autorelease];
    EXPECT_TRUE(CGSizeEqualToSize([view frame].size, CGSizeMake(20, 20)));
    place(view);
    EXPECT_EQ(elementOf(view).type, "");
    [view startAnimating];
    EXPECT_EQ(elementOf(view).type, "ActivityIndicator");
    [view stopAnimating];
    EXPECT_EQ(elementOf(view).type, "");
}

} // namespace
