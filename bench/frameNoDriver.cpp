// A whole frame without what the driver does, the hardest comparison that there is: whatever is not the bare loop's own
// work shows in full.

#include "bench/znNFrameBench.h"

int main(int pCount, char** pArguments)
{
    znNFrameBench::add("FrameNoDriver", znNFrameBench::Driver::NONE);
    return znNBenchMain::run(pCount, pArguments);
}
