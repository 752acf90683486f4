#ifndef ZNAPPCORE_ZNISAVEDDATA_H
#define ZNAPPCORE_ZNISAVEDDATA_H

#include "zncore/src/znCVariableTable.h"

// A table of what survives a run.
class znISavedData : public znCVariableTable
{
public:
    ~znISavedData() override = default;
    virtual void defaultsSet() {}

    // Empties the table and fills in the defaults.
    void reset();
    // Empties the table; what is read then is the getter's default.
    void clear();
};

#endif
