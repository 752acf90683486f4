#ifndef ZNCORE_XML_ZNXMLPOOLS_H
#define ZNCORE_XML_ZNXMLPOOLS_H

// The three pools that all parsers share, and the text that their elements point into: N nodes, N tag markers and 8 N
// attributes, N a multiple of 1024. They only grow, and start from their beginning at each parse. Memory is touched as
// it is used.

#include "zncore/xml/znXmlAttribute.h"
#include "zncore/xml/znXmlNode.h"
#include "zncore/xml/znXmlTagMarker.h"
#include <memory>
#include <string>
#include <vector>

class znXmlPools
{
public:
    static constexpr s32 STEP = 1024;
    static constexpr s32 ATTRIBUTES_A_TAG = 8;

    static znXmlPools& instanceGet();

    // Room for pTags, rounded up to STEP; smaller pools are made anew.
    void create(s32 pTags);
    void destroy();
    bool existGet() const { return mSize != 0; }
    s32 sizeGet() const { return mSize; } // N

    // Everything handed out so far is handed out again from here on, and pText takes the place of the text.
    void restart(std::string&& pText);
    // Counts the restarts; what was handed out under another number is no longer valid.
    u32 generationGet() const { return mGeneration; }
    char* textGet() { return mText.data(); }

    // Cleared; null when all but the last are handed out.
    znXmlNode* nodeTake() { return elementTake(mNodes.get(), mNodesUsed, mSize); }
    znXmlAttribute* attributeTake()
    {
        return elementTake(mAttributes.get(), mAttributesUsed, mSize * ATTRIBUTES_A_TAG);
    }

    // The markers of the file that is being read, which say how large the pools have to be. A caller sees to it that no
    // more than N - 1 are used.
    std::vector<znXmlTagMarker>& markersGet() { return mMarkers; }

private:
    template <class Element>
    static Element* elementTake(Element* pPool, s32& pUsed, s32 pSize)
    {
        if (pUsed >= pSize - 1)
            return nullptr;
        Element* element = pPool + pUsed++;
        *element = Element();
        element->mPooled = true;
        return element;
    }

    s32 mSize = 0;
    s32 mNodesUsed = 0;
    s32 mAttributesUsed = 0;
    u32 mGeneration = 0;
    std::unique_ptr<znXmlNode[]> mNodes;
    std::unique_ptr<znXmlAttribute[]> mAttributes;
    std::vector<znXmlTagMarker> mMarkers;
    std::string mText;
};

#endif
