// How the root page knows its own alerts and sheets again.
#pragma once

#import <Foundation/Foundation.h>

namespace zv {

/// Tag of the call-history confirmation and of the tools sheet. They share it, because different delegate
/// messages tell them apart.
constexpr NSInteger rootPageTag = 10086;

} // namespace zv
