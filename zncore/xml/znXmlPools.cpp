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
    destroy();
    mNodes = std::make_unique_for_overwrite<znXmlNode[]>(static_cast<std::size_t>(size));
    mMarkers = std::make_unique_for_overwrite<znXmlTagMarker[]>(static_cast<std::size_t>(size));
    mAttributes = std::make_unique_for_overwrite<znXmlAttribute[]>(static_cast<std::size_t>(size) * ATTRIBUTES_A_TAG);
    mSize = size;
}

void znXmlPools::destroy()
{
    restart(std::string());
    mText.shrink_to_fit();
    mNodes.reset();
    mMarkers.reset();
    mAttributes.reset();
    mSize = 0;
}

void znXmlPools::restart(std::string&& pText)
{
    mText = std::move(pText);
    ++mGeneration;
    mNodesUsed = 0;
    mAttributesUsed = 0;
    mMarkersUsed = 0;
}

znXmlNode* znXmlPools::nodeTake()
{
    if (mNodesUsed >= mSize - 1)
        return nullptr;
    znXmlNode* node = &mNodes[static_cast<std::size_t>(mNodesUsed++)];
    *node = znXmlNode();
    node->mPooled = true;
    return node;
}

znXmlAttribute* znXmlPools::attributeTake()
{
    if (mAttributesUsed >= mSize * ATTRIBUTES_A_TAG - 1)
        return nullptr;
    znXmlAttribute* attribute = &mAttributes[static_cast<std::size_t>(mAttributesUsed++)];
    *attribute = znXmlAttribute();
    attribute->mPooled = true;
    return attribute;
}

znXmlTagMarker* znXmlPools::markerTake()
{
    return mMarkersUsed >= mSize - 1 ? nullptr : &mMarkers[static_cast<std::size_t>(mMarkersUsed++)];
}
