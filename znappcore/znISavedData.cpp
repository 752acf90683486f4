#include "znappcore/znISavedData.h"

void znISavedData::reset()
{
    clear();
    defaultsSet();
}

void znISavedData::clear()
{
    mEntries.clear();
}
