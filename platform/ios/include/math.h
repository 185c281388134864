// The C library's arithmetic that the bundle calls.
#pragma once

extern "C" {
double floor(double number);
}
