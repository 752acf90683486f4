#ifndef ZNAPPCORE_IMPL_PLATFORM_ZNCRENDERER_H
#define ZNAPPCORE_IMPL_PLATFORM_ZNCRENDERER_H

#include "media/znNGraphics.h"
#include "znappcore/znIRenderer.h"

// The renderer on the media layer: writes the streams of each run into frame memory and queues one draw call for it.
class znCRenderer final : public znIRenderer
{
public:
    znCRenderer(s32 pMaxSprites, s32 pMaxMaterialChanges);

    void perspectiveSet(float pNear, float pFar, float pFieldOfView) override;
    void lightAdd(znCLight& pLight) override;
    void lightRemove(znCLight& pLight) override;
    void spritesDraw(s32 pFirst, s32 pLast) override;
    void textDraw(s32 pFirst, s32 pLast) override;

    // The matrix that perspectiveSet made, row after row; the identity before that.
    const float (&perspectiveGet() const)[4][4] { return mPerspective; }

protected:
    void screenClear() override;
    void readCursorsReset() override;
    void renderFlush() override;
    void buffersSwap() override;
    void platformInitialise() override;
    void platformTerminate() override;

private:
    // What a light left in its slot.
    struct LightSlot
    {
        s32 mType = 0; // 0 free, 1 ambient, 2 directional
        znCLight mLight;
    };

    s32 unusedLightIndexGet() const;
    znCGraphicsVertex* streamsTake(s32 pVertices);
    void spriteStreamsWrite(znCGraphicsVertex* pVertices, s32 pSprites);

    // The streams of each draw call of the frame, in frame memory: those of an unchanged frame are still there.
    std::vector<znCGraphicsVertex*> mStreams;
    std::size_t mStreamIndex = 0; // of the draw call to come
    u32 mMemoryNumber = 0;        // of the frame memory that mStreams lie in
    bool mStreamsKept = false;    // those of the frame before are drawn

    // Into mStreams, one each a run of sprites.
    std::unique_ptr<znPointF*[]> mVertexStreams;
    std::unique_ptr<znPointF*[]> mUvStreams;
    std::unique_ptr<u32*[]> mColourStreams;
    s32 mSpriteReadIndex = 0;
    s32 mTextReadIndex = 0;

    LightSlot mLights[2];
    float mPerspective[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
};

#endif
