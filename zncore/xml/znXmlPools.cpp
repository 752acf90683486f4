#include "zncore/xml/znXmlPools.h"
#include <algorithm>

znXmlPools& znXmlPools::instanceGet()
{
    static znXmlPools sInstance;
    return sInstance;
}

void znXmlPools::create(s32 pTags)
{
    const s32 size = std::max((pTags + STEP - 1) / STEP, 1) * STEP;
    if (size <= mSize)
        return;
    restart(std::string());
    mNodes = std::make_unique_for_overwrite<znXmlNode[]>(static_cast<std::size_t>(size));
    mAttributes = std::make_unique_for_overwrite<znXmlAttribute[]>(static_cast<std::size_t>(size) * ATTRIBUTES_A_TAG);
    mSize = size;
}

void znXmlPools::destroy()
{
    restart(std::string());
    mText.shrink_to_fit();
    mNodes.reset();
    mAttributes.reset();
    mMarkers = {};
    mSize = 0;
}

void znXmlPools::restart(std::string&& pText)
{
    mText = std::move(pText);
    ++mGeneration;
    mNodesUsed = 0;
    mAttributesUsed = 0;
}
