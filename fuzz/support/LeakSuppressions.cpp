#include "support/LeakSuppressions.h"
