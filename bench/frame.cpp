// A whole frame with a driver that does its share of the work; see the header.

#include "bench/znNFrameBench.h"

int main(int pCount, char** pArguments)
{
    znNFrameBench::add("Frame", znNFrameBench::Driver::SOFTWARE);
    return znNBenchMain::run(pCount, pArguments);
}
