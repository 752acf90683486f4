#ifndef ZNAPPCORE_ZNISAVEDDATA_H
#define ZNAPPCORE_ZNISAVEDDATA_H

#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"

// A table of what survives a run. Its file is a table's file like any other, which people may read and edit.
class znISavedData : public znCVariableTable
{
public:
    ~znISavedData() override = default;
    virtual void defaultsSet() {}

    // Empties the table and fills in the defaults.
    void reset();
    // Empties the table; what is read then is the getter's default.
    void clear();

    // As fileLoad(), and of a damaged file the one saved before it, with one line in the log. Damaged is a file that
    // can't be read, that holds a zero byte, that ends within an entry, or of which wholeGet() doesn't hold. If the one
    // before is no better, what can be read of the file counts; STATUS_READ_FAILED if it can't be read at all.
    s32 savedFileLoad(const znCResourceName& pName);

protected:
    // Whether the table holds all that a file of it must have.
    virtual bool wholeGet() const { return true; }

private:
    bool textLoad(const std::string& pText);
};

#endif
