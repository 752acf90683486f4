#ifndef ZNCORE_XML_ZNCXMLNODE_H
#define ZNCORE_XML_ZNCXMLNODE_H

#include "zncore/xml/znIXmlNode.h"
#include "zncore/xml/znXmlHandle.h"

// A node of the pool, as callers see it.
class znCXmlNode : public znIXmlNode
{
public:
    explicit znCXmlNode(const znXmlHandle<znXmlNode>& pHandle) : mHandle(pHandle) {}

    std::string nameGet() const override;
    std::string valueGet() const override;
    znCXmlIterator<znIXmlAttribute> attributesBegin() const override;
    znCXmlIterator<znIXmlAttribute> attributesEnd() const override;
    znCXmlIterator<znIXmlNode> childrenBegin() const override;
    znCXmlIterator<znIXmlNode> childrenEnd() const override;

    const znXmlHandle<znXmlNode>& handleGet() const { return mHandle; }

private:
    znXmlHandle<znXmlNode> mHandle;
};

#endif
