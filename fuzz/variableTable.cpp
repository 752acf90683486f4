// Any bytes as a variable table: parsed, converted, saved and loaded again, where nothing may change.

#include "tests/support/znCTestPlatform.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"
#include <cstddef>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const u8* pData, std::size_t pSize)
{
    static znCTestPlatform sPlatform;
    const char* text = reinterpret_cast<const char*>(pData);
    znCVariableTable table;
    table.textParse(text, text + pSize);
    for (const auto& [key, value] : table.entriesGet())
    {
        table.s32Get(key);
        table.f32Get(key);
    }
    const znCResourceName name("fuzz.txt", znCResourceName::USER_DATA);
    znCVariableTable back;
    if (!table.fileSave(name) || back.fileLoad(name) != znCVariableTable::STATUS_LOADED ||
        back.entriesGet() != table.entriesGet())
        std::abort();
    return 0;
}
