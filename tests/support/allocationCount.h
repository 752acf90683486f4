#ifndef TESTS_SUPPORT_ALLOCATIONCOUNT_H
#define TESTS_SUPPORT_ALLOCATIONCOUNT_H

// How often the program has asked for memory so far: under AddressSanitizer every allocation, also those of C
// libraries; otherwise every operator new.

#include <cstddef>

std::size_t allocationCountGet();

#endif
