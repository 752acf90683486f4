#ifndef ZNCORE_XML_ZNIXMLNODE_H
#define ZNCORE_XML_ZNIXMLNODE_H

#include "zncore/xml/znCXmlIterator.h"
#include "zncore/xml/znIXmlAttribute.h"
#include <string>

// An element of an XML file. Belongs to the last parse of any parser (see znIXmlParser).
class znIXmlNode
{
public:
    virtual std::string nameGet() const = 0;
    // The text that follows the start tag directly, as it stands in the file; "" without one. A text behind a child
    // belongs to nobody.
    virtual std::string valueGet() const = 0;
    virtual znCXmlIterator<znIXmlAttribute> attributesBegin() const = 0;
    virtual znCXmlIterator<znIXmlAttribute> attributesEnd() const = 0;
    virtual znCXmlIterator<znIXmlNode> childrenBegin() const = 0;
    virtual znCXmlIterator<znIXmlNode> childrenEnd() const = 0;
    virtual ~znIXmlNode() = default;
};

#endif
