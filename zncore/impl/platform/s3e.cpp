#include "zncore/impl/platform/s3e.h"

namespace
{
// One pointer for each operation, named after it.
struct BoundOperations
{
#define S3E_POINTER(result, name, parameters, arguments, unbound) result(*name) parameters = nullptr;
    S3E_OPERATIONS(S3E_POINTER)
#undef S3E_POINTER
};

BoundOperations sBound;

template <class Function>
void entryBind(const s3eFunctionTable& pTable, u32 pHash, Function& pPointer)
{
    for (u32 i = 0; i < pTable.mCount; ++i)
        if (pTable.mEntries[i].mHash == pHash)
            pPointer = reinterpret_cast<Function>(pTable.mEntries[i].mFunction);
}
} // namespace

void s3eTableBind(const s3eFunctionTable* pTable)
{
    sBound = BoundOperations();
    if (pTable == nullptr)
        return;
#define S3E_BIND(result, name, parameters, arguments, unbound) entryBind(*pTable, s3eHash(#name), sBound.name);
    S3E_OPERATIONS(S3E_BIND)
#undef S3E_BIND
}

#define S3E_DEFINE(result, name, parameters, arguments, unbound)                                                       \
    result name parameters                                                                                             \
    {                                                                                                                  \
        if (sBound.name == nullptr)                                                                                    \
            return unbound;                                                                                            \
        return sBound.name arguments;                                                                                  \
    }
S3E_OPERATIONS(S3E_DEFINE)
#undef S3E_DEFINE
