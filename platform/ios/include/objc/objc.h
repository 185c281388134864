// The Objective-C runtime's base types on iOS (public header of the same name, declared anew).
#pragma once

#if __LP64__
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif

#define YES __objc_yes
#define NO __objc_no
#define nil nullptr
#define Nil nullptr
