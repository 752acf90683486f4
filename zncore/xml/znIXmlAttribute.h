#ifndef ZNCORE_XML_ZNIXMLATTRIBUTE_H
#define ZNCORE_XML_ZNIXMLATTRIBUTE_H

#include "zncore/znTypes.h"
#include <string>

// An attribute of an XML element. Belongs to the last parse of any parser (see znIXmlParser).
class znIXmlAttribute
{
public:
    virtual std::string nameGet() const = 0;
    // The five named entities are resolved; numeric references and a backslash before a double quote stay.
    virtual std::string valueGet() const = 0;
    // The leading decimal number, 0 if there is none.
    virtual s32 s32ValueGet() const = 0;
    virtual ~znIXmlAttribute() = default;
};

#endif
