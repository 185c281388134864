#include "PlainAnswers.h"

@implementation PlainAnswers

- (void)write:(const char *)what index:(NSInteger)index {
    told.push_back(what + std::string(" ") + std::to_string(index));
}

- (void)alertView:(UIAlertView *)alert clickedButtonAtIndex:(NSInteger)index {
    [self write:"clicked" index:index];
}

- (void)alertView:(UIAlertView *)alert willDismissWithButtonIndex:(NSInteger)index {
    [self write:"will dismiss" index:index];
}

- (void)alertView:(UIAlertView *)alert didDismissWithButtonIndex:(NSInteger)index {
    [self write:"did dismiss" index:index];
}

- (void)actionSheet:(UIActionSheet *)sheet clickedButtonAtIndex:(NSInteger)index {
    [self write:"clicked" index:index];
}

- (void)actionSheet:(UIActionSheet *)sheet willDismissWithButtonIndex:(NSInteger)index {
    [self write:"will dismiss" index:index];
}

- (void)actionSheet:(UIActionSheet *)sheet didDismissWithButtonIndex:(NSInteger)index {
    [self write:"did dismiss" index:index];
}

@end
