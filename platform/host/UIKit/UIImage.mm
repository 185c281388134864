// Follows the UIImage class reference and, for file names, "Image Resources" in the Resource Programming
// Guide. Pictures are PNG files; what this platform reads of them is their size.
#include "UIKit/UIImage+Host.h"

#include "host/Device.h"
#include "host/Retained.h"
#include "host/Text.h"
#include "UIKit/PngHeader.h"

#include <cmath>
#include <vector>

struct UIImageState {
    CGSize size = {0, 0}; ///< in points
    CGFloat scale = 1;
    UIImageRenderingMode mode = UIImageRenderingModeAutomatic;
    host::Retained<NSString *> path;
};

namespace {

/// "@2x" for 2, "@3x" for 3.
NSString *suffix(int scale) {
    return [NSString stringWithFormat:@"@%dx", scale];
}

/// The scale that a file's name says it is for.
int scaleInName(NSString *path) {
    NSString *name = [[path lastPathComponent] stringByDeletingPathExtension];
    if ([name hasSuffix:@"~iphone"])
        name = [name substringToIndex:[name length] - [@"~iphone" length]];
    for (int scale = 2; scale <= 3; scale++) {
        if ([name hasSuffix:suffix(scale)])
            return scale;
    }
    return 1;
}

/// `path` with `addition` before its extension.
NSString *pathWith(NSString *path, NSString *addition) {
    NSString *extension = [path pathExtension];
    NSString *whole = [[path stringByDeletingPathExtension] stringByAppendingString:addition];
    return [extension length] ? [whole stringByAppendingPathExtension:extension] : whole;
}

/// The files that may stand for `path` on this screen, the best first.
std::vector<NSString *> candidates(NSString *path) {
    std::vector<NSString *> paths;
    const int screen = static_cast<int>(std::lround(host::device().scale));
    for (int scale = scaleInName(path) == 1 ? screen : 1; scale > 1; scale--) {
        paths.push_back(pathWith(path, [suffix(scale) stringByAppendingString:@"~iphone"]));
        paths.push_back(pathWith(path, suffix(scale)));
    }
    paths.push_back(pathWith(path, @"~iphone"));
    paths.push_back(path);
    return paths;
}

bool isFile(NSString *path) {
    BOOL folder = NO;
    return [[NSFileManager defaultManager] fileExistsAtPath:path isDirectory:&folder] && !folder;
}

NSMutableDictionary *namedImages() {
    static NSMutableDictionary *images = [NSMutableDictionary new];
    return images;
}

} // namespace

@implementation UIImage

+ (UIImage *)imageNamed:(NSString *)name {
    if ([name length] == 0)
        return nil;
    UIImage *known = [namedImages() objectForKey:name];
    if (known)
        return known;
    NSString *file = [[name pathExtension] length] ? name : [name stringByAppendingPathExtension:@"png"];
    NSString *folder = [[NSBundle mainBundle] resourcePath];
    UIImage *image = [self imageWithContentsOfFile:[folder stringByAppendingPathComponent:file]];
    if (image)
        [namedImages() setObject:image forKey:name];
    return image;
}

+ (UIImage *)imageWithContentsOfFile:(NSString *)path {
    return [[[self alloc] initWithContentsOfFile:path] autorelease];
}

+ (UIImage *)imageWithData:(NSData *)data {
    return [self imageWithData:data scale:1];
}

+ (UIImage *)imageWithData:(NSData *)data scale:(CGFloat)scale {
    return [[[self alloc] initWithData:data scale:scale] autorelease];
}

- (id)initWithContentsOfFile:(NSString *)path {
    if ([path length]) {
        for (NSString *candidate : candidates(path)) {
            if (isFile(candidate))
                return [self _hostInitWithFile:candidate];
        }
    }
    [self release];
    return nil;
}

- (id)_hostInitWithFile:(NSString *)path {
    self = [self initWithData:[NSData dataWithContentsOfFile:path] scale:scaleInName(path)];
    if (self)
        _image->path = path;
    return self;
}

- (id)initWithData:(NSData *)data {
    return [self initWithData:data scale:1];
}

- (id)initWithData:(NSData *)data scale:(CGFloat)scale {
    const auto *bytes = static_cast<const std::uint8_t *>([data bytes]);
    const auto pixels = host::pngSize({bytes, [data length]});
    if (!pixels || scale <= 0) {
        [self release];
        return nil;
    }
    if ((self = [super init])) {
        _image = new UIImageState;
        _image->size = CGSizeMake(pixels->width / scale, pixels->height / scale);
        _image->scale = scale;
    }
    return self;
}

- (void)dealloc {
    delete _image;
    [super dealloc];
}

- (CGSize)size {
    return _image->size;
}

- (CGFloat)scale {
    return _image->scale;
}

- (UIImageRenderingMode)renderingMode {
    return _image->mode;
}

- (UIImage *)imageWithRenderingMode:(UIImageRenderingMode)mode {
    UIImage *image = [[[UIImage alloc] init] autorelease];
    image->_image = new UIImageState(*_image);
    image->_image->mode = mode;
    return image;
}

- (NSString *)_hostPath {
    return _image->path;
}

@end

std::string host::imagePath(UIImage *image) {
    return utf8([image _hostPath]);
}

void host::describeImage(Element &element, UIImage *image) {
    if (!image)
        return;
    element.attributes["image"] = imagePath(image);
    element.attributes["scale"] = double([image scale]);
    if ([image renderingMode] == UIImageRenderingModeAlwaysTemplate)
        element.attributes["template"] = true;
}
