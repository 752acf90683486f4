#ifndef ZNCORE_XML_ZNCXMLATTRIBUTE_H
#define ZNCORE_XML_ZNCXMLATTRIBUTE_H

#include "zncore/xml/znIXmlAttribute.h"
#include "zncore/xml/znXmlHandle.h"

// An attribute of the pool, as callers see it.
class znCXmlAttribute : public znIXmlAttribute
{
public:
    explicit znCXmlAttribute(const znXmlHandle<znXmlAttribute>& pHandle) : mHandle(pHandle) {}

    std::string nameGet() const override;
    std::string valueGet() const override;
    s32 s32ValueGet() const override;

private:
    znXmlHandle<znXmlAttribute> mHandle;
};

#endif
