#ifndef ZNAPPCORE_SRC_ZNCSPRITERENDERDATA_H
#define ZNAPPCORE_SRC_ZNCSPRITERENDERDATA_H

#include "znappcore/znISpriteRenderData.h"

#include <cstring>

// The streams of one quad, kept ready so that drawing only copies them.
class znCSpriteRenderData final : public znISpriteRenderData
{
public:
    // In the header, since a sprite sets them each time it moves.
    void verticesSet(const znPointF pCorners[4]) override
    {
        std::memcpy(mVertices, pCorners, sizeof mVertices);
        znNRenderChanges::contentsMark();
    }
    // For writing all four.
    znPointF* verticesChange()
    {
        znNRenderChanges::contentsMark();
        return mVertices;
    }
    void uvsSet(float pU0, float pU1, float pV0, float pV1) override;
    void colourSet(const znCColour& pColour) override;

    const znPointF* verticesGet() const { return mVertices; } // 4
    const znPointF* uvsGet() const { return mUvs; }           // 4
    // (alpha << 24) | (blue << 16) | (green << 8) | red
    u32 colourGet() const { return mColour; }

    // Each component times 255, truncated; components outside 0 to 1 are limited to it.
    static u32 colourPack(const znCColour& pColour);

private:
    znPointF mVertices[4] = {};
    znPointF mUvs[4] = {};
    u32 mColour = 0xFFFFFFFFu;
};

#endif
