#include "rootpage/SupportLinks.h"

#import <UIKit/UIKit.h>

namespace zv {

namespace {

constexpr NSString *supportAddress = @"support@zelvora.example";
constexpr NSString *microblog = @"https://microblog.example/zelvora";
constexpr const char *buildCode = "1A7";

void open(NSString *address) {
    [[UIApplication sharedApplication] openURL:[NSURL URLWithString:address]];
}

} // namespace

void openSupportMail() {
    NSString *version = [[[UIDevice currentDevice] systemVersion] stringByReplacingOccurrencesOfString:@"."
                                                                                            withString:@""];
    NSString *mail =
        [NSString stringWithFormat:@"mailto:%@?subject=Zelvora [%@%s]", supportAddress, version, buildCode];
    open([mail stringByAddingPercentEscapesUsingEncoding:NSASCIIStringEncoding]);
}

void openMicroblog() {
    open(microblog);
}

} // namespace zv
