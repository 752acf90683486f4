#ifndef LOADER_ZNCFUNCTIONTABLE_H
#define LOADER_ZNCFUNCTIONTABLE_H

#include "zncore/impl/platform/s3e.h"

class znCLoader;

// The table of plain functions that the module binds. They have no object, so the table serves one loader: the one that
// it was built for last, which must outlive its use.
class znCFunctionTable
{
public:
    static const s3eFunctionTable& build(znCLoader& pLoader);
};

#endif
