#ifndef ZNCORE_XML_ZNXMLATTRIBUTE_H
#define ZNCORE_XML_ZNXMLATTRIBUTE_H

#include "zncore/xml/znXmlText.h"

// An attribute in the pool.
struct znXmlAttribute
{
    bool mPooled; // handed out by the pool
    u32 mHash;    // of the name: what tells attributes of one node apart
    znXmlText mName;
    znXmlText mValue;
    znXmlAttribute* mNext; // of the same node
};

#endif
