// The part of Core Graphics that settings pages use: geometry.
#pragma once

#import <CoreGraphics/CGGeometry.h>
