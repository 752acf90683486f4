#ifndef ZNCORE_XML_ZNXMLTAGMARKER_H
#define ZNCORE_XML_ZNXMLTAGMARKER_H

#include "zncore/znTypes.h"

// Where a tag or a text stands in the text of a file, in bytes.
struct znXmlTagMarker
{
    s32 mOffset;
    s32 mLength;
};

#endif
