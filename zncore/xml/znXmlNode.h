#ifndef ZNCORE_XML_ZNXMLNODE_H
#define ZNCORE_XML_ZNXMLNODE_H

#include "zncore/xml/znXmlAttribute.h"
#include "zncore/xml/znXmlText.h"

// An element in the pool. Attributes and children are lists through the elements themselves, in file order.
struct znXmlNode
{
    bool mPooled; // handed out by the pool
    bool mHasValue;
    znXmlText mName;
    znXmlText mValue;
    znXmlAttribute* mFirstAttribute;
    znXmlAttribute* mLastAttribute;
    znXmlNode* mParent;
    znXmlNode* mFirstChild;
    znXmlNode* mLastChild;
    znXmlNode* mNext; // of the same parent

    void attributeAppend(znXmlAttribute* pAttribute)
    {
        (mLastAttribute != nullptr ? mLastAttribute->mNext : mFirstAttribute) = pAttribute;
        mLastAttribute = pAttribute;
    }
    void childAppend(znXmlNode* pChild)
    {
        pChild->mParent = this;
        (mLastChild != nullptr ? mLastChild->mNext : mFirstChild) = pChild;
        mLastChild = pChild;
    }
};

#endif
