#include "zncore/xml/znCXmlAttribute.h"
#include "zncore/znStr.h"

std::string znCXmlAttribute::nameGet() const
{
    const znXmlAttribute* attribute = mHandle.elementGet();
    return attribute != nullptr ? std::string(attribute->mName.viewGet()) : std::string();
}

std::string znCXmlAttribute::valueGet() const
{
    const znXmlAttribute* attribute = mHandle.elementGet();
    return attribute != nullptr ? std::string(attribute->mValue.viewGet()) : std::string();
}

s32 znCXmlAttribute::s32ValueGet() const
{
    const znXmlAttribute* attribute = mHandle.elementGet();
    return attribute != nullptr ? znStr::toS32(attribute->mValue.viewGet()) : 0;
}
