#ifndef ZNAPPCORE_ZNIRENDERER_H
#define ZNAPPCORE_ZNIRENDERER_H

#include "zncore/znTypes.h"

#include <memory>
#include <vector>

class znCMaterial;
class znIFont;
class znIRenderJob;
class znISpriteRenderData;
class znITextRenderData;

// A light of the graphics layer. The game draws without any; the slots are there for what is built on the engine.
struct znCLight
{
    s32 mType = 0; // 0 ambient, anything else directional
    float mRed = 1.0f;
    float mGreen = 1.0f;
    float mBlue = 1.0f;
    float mDirection[3] = {0.0f, 0.0f, 1.0f};
    s32 mIndex = 0x7FFFFFFF; // the slot that the light stands in; 0x7FFFFFFF for none
};

// Gathers the sprites and texts of a frame and draws them in the order in which they came, with one draw call for each
// run of sprites that share texture and alpha mode, and one for each text. Nothing is sorted: the order of the tree is
// the paint order.
//
// A frame is frameClear(), frameBegin(), any number of adds, frameEnd(). What is added stays the caller's, and must
// stay alive and unchanged until frameEnd() is over. After the first frames nothing is taken from the heap.
//
// A singleton, created after the display and before the brush manager.
class znIRenderer
{
public:
    // A frame holds up to pMaxSprites - 1 sprites, as many texts, and pMaxMaterialChanges runs of either.
    // A second call logs "Already created znIRenderer.\n" and starts anew.
    static void create(s32 pMaxSprites, s32 pMaxMaterialChanges);
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znIRenderer* instanceGet();
    static void destroy();

    virtual ~znIRenderer();
    // Loads a perspective matrix; distances in metres, the angle in radians. The flat drawing of the game has no use
    // for one.
    virtual void perspectiveSet(float pNear, float pFar, float pFieldOfView) = 0;
    // Puts a light into one of two slots; with both taken "only 2 lights are supported." is logged and the second slot
    // is taken over.
    virtual void lightAdd(znCLight& pLight) = 0;
    virtual void lightRemove(znCLight& pLight) = 0;

protected:
    virtual void initialise();
    virtual void terminate();
    virtual void screenClear() = 0;
    virtual void readCursorsReset() = 0;
    virtual void renderFlush() = 0;
    virtual void buffersSwap() = 0;
    virtual void platformInitialise() = 0;
    virtual void platformTerminate() = 0;

public:
    // What the jobs call: the runs pFirst to pLast, both included.
    virtual void spritesDraw(s32 pFirst, s32 pLast) = 0;
    virtual void textDraw(s32 pFirst, s32 pLast) = 0;

    // A full batch drops this one. The first time it logs "No room to batch another sprite. Increase mMaxSprites.\n":
    // a line a sprite and frame would fill the log.
    void spriteAddToBatch(znISpriteRenderData* pData);
    // So many sprites of one material.
    void spritesAddToBatch(znISpriteRenderData* const* pData, s32 pCount);
    // The same as for a sprite, with "No room to batch another text. Increase mMaxSprites.\n".
    void textAddToBatch(znITextRenderData* pData);

    void frameClear();
    void frameBegin();
    void frameEnd();

    znIRenderer(const znIRenderer&) = delete;
    znIRenderer& operator=(const znIRenderer&) = delete;

protected:
    // Values below 1 log "pMaxSprites needs to be greater than 0!\n" or "pMaxMaterialChanges needs to be greater than
    // 0!\n" and count as 1.
    znIRenderer(s32 pMaxSprites, s32 pMaxMaterialChanges);

private:
    bool materialIncrementIfChanged(const znISpriteRenderData& pData);
    bool fontIncrementIfChanged(const znITextRenderData& pData);
    bool materialRunAdd(const znISpriteRenderData& pData);
    bool fontRunAdd(const znITextRenderData& pData);

protected:
    std::vector<std::unique_ptr<znIRenderJob>> mJobs; // in the order of adding
    s32 mState = 0;                                   // 0 idle, 1 batching

    std::unique_ptr<znISpriteRenderData*[]> mSprites; // mMaxSprites; not owned
    std::unique_ptr<const znCMaterial*[]> mMaterials; // mMaxMaterialChanges; of the first sprite of each run
    std::unique_ptr<s32[]> mMaterialSpriteCounts;     // mMaxMaterialChanges; sprites of each run
    std::unique_ptr<znITextRenderData*[]> mTexts;     // mMaxSprites; not owned
    std::unique_ptr<znIFont*[]> mFonts;               // mMaxMaterialChanges; of each run of texts
    std::unique_ptr<s32[]> mFontTextCounts;           // mMaxMaterialChanges; texts of each run
    // The frame is gathered of the same sprites and texts as the one before, in the same order, and none of them has
    // changed: what was drawn from them can be drawn again. Known from frameEnd() on.
    bool mUnchanged = false;

    s32 mSpriteCount = 0;
    s32 mMaterialIndex = -1; // of the last run of sprites; -1 before the first
    s32 mTextCount = 0;
    s32 mFontIndex = -1; // of the last run of texts; -1 before the first
    s32 mMaxSprites;
    s32 mMaxMaterialChanges;

private:
    void itemAdd(const void* pItem);
    bool unchangedGet();

    std::unique_ptr<const void*[]> mItems; // all sprites and texts of the frame, behind them those of earlier ones
    s32 mItemCount = 0;
    bool mItemsSame = true; // so far those of the frame before
    s32 mLastItemCount = 0;
    u64 mLastChanges = 0; // of the render data, when the frame before was drawn
    u32 mLastGlyphUvs = 0;
    bool mSpritesFullLogged = false;
    bool mMaterialsFullLogged = false;
    bool mTextsFullLogged = false;
    bool mFontsFullLogged = false;
};

#endif
