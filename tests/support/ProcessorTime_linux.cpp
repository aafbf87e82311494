#include "tests/support/ProcessorTime.h"

#include <ctime>

double ProcessorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}
