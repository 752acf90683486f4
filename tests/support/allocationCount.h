#ifndef TESTS_SUPPORT_ALLOCATIONCOUNT_H
#define TESTS_SUPPORT_ALLOCATIONCOUNT_H

// How often the program has called operator new so far, in any of its forms. Memory from malloc isn't counted.

#include <cstddef>

std::size_t allocationCountGet();

#endif
