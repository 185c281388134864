# How Objective-C++ is compiled on Linux: clang over GCC's Objective-C runtime and GNUstep Base.
# Everything links to zv_objc, which carries the flags and libraries.

execute_process(COMMAND gcc -print-file-name=include
  OUTPUT_VARIABLE ZV_GCC_INCLUDE OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT EXISTS ${ZV_GCC_INCLUDE}/objc/objc.h)
  message(FATAL_ERROR "No Objective-C runtime headers in ${ZV_GCC_INCLUDE} (package libobjc-12-dev)")
endif()

option(ZV_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(ZV_BENCHMARKS "Build the benchmarks" OFF)
option(ZV_FUZZERS "Build the fuzzers" OFF)

find_program(ZV_CCACHE ccache)
if(ZV_CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER ${ZV_CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ZV_CCACHE})
  set(CMAKE_OBJCXX_COMPILER_LAUNCHER ${ZV_CCACHE})
endif()

add_library(zv_warnings INTERFACE)
target_compile_options(zv_warnings INTERFACE
  -Wall -Wextra -Werror -Wshadow -Wnon-virtual-dtor -Wimplicit-fallthrough
  -Wextra-semi -Wno-unused-parameter)

add_library(zv_objc INTERFACE)
target_compile_options(zv_objc INTERFACE
  $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-runtime=gcc -fblocks -fconstant-string-class=NSConstantString
    -fexceptions -fobjc-exceptions -D_NATIVE_OBJC_EXCEPTIONS -DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1
    -DGNU_RUNTIME=1 -Wno-import -Wno-objc-root-class>
  "SHELL:-idirafter ${ZV_GCC_INCLUDE}")
# GNUstep's headers ask for objc/blocks_runtime.h, which GCC's runtime does not have.
target_include_directories(zv_objc SYSTEM INTERFACE
  ${CMAKE_CURRENT_SOURCE_DIR}/cmake/compat /usr/include/GNUstep)
# BlocksRuntime comes first: GNUstep Base has a Block_copy of its own that copies nothing.
target_link_libraries(zv_objc INTERFACE BlocksRuntime gnustep-base objc)

if(ZV_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(ZV_FUZZERS)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
