#ifndef LOADER_ZNCEXTENSIONS_H
#define LOADER_ZNCEXTENSIONS_H

#include "zncore/impl/platform/s3eExtensions.h"

class znCLoader;

// The extension tables. Like the function table they serve one loader.
class znCExtensions
{
public:
    static void loaderSet(znCLoader& pLoader);
    // Fills pTable; an unknown hash, another size, and the window and the mouse of a touch device are refused.
    static s3eResult tableGet(u32 pHash, void* pTable, u32 pBytes);
};

#endif
