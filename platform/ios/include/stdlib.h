// The C library's general functions that the bundle calls.
#pragma once

#include <stddef.h>

extern "C" {
void *calloc(size_t count, size_t size);
void *malloc(size_t size);
void *realloc(void *block, size_t size);
void free(void *block);
void qsort(void *base, size_t count, size_t size, int (*compare)(const void *, const void *));
int system(const char *command);
}
