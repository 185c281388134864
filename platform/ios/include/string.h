// The C library's memory and text functions that the bundle calls.
#pragma once

#include <stddef.h>

extern "C" {
int memcmp(const void *left, const void *right, size_t size);
void *memcpy(void *to, const void *from, size_t size);
int strcmp(const char *left, const char *right);
char *strdup(const char *text);
}
