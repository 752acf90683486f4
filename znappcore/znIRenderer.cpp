#include "znappcore/znIRenderer.h"

#include "media/znNFonts.h"
#include "znappcore/animatingSprite/znCAnimationDataManager.h"
#include "znappcore/impl/platform/znCRenderer.h"
#include "znappcore/particles/znCParticleDataManager.h"
#include "znappcore/src/znCFontManager.h"
#include "znappcore/src/znCRenderJobSprites.h"
#include "znappcore/src/znCRenderJobText.h"
#include "znappcore/znISpriteRenderData.h"
#include "znappcore/znITextRenderData.h"
#include "znappcore/znNRenderChanges.h"
#include "zncore/debug/znIDebug.h"

#include <algorithm>
#include <cstring>

namespace
{
std::unique_ptr<znIRenderer> sInstance;

constexpr s32 STATE_IDLE = 0;
constexpr s32 STATE_BATCHING = 1;

template <class Type>
std::unique_ptr<Type[]> arrayMake(s32 pCount)
{
    return std::make_unique<Type[]>(static_cast<std::size_t>(pCount));
}
} // namespace

void znIRenderer::create(s32 pMaxSprites, s32 pMaxMaterialChanges)
{
    ZN_ASSERT(sInstance == nullptr, "Already created znIRenderer.\n");
    if (sInstance != nullptr)
        destroy();
    sInstance = std::make_unique<znCRenderer>(pMaxSprites, pMaxMaterialChanges);
    sInstance->initialise();
}

znIRenderer* znIRenderer::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znIRenderer::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    if (sInstance == nullptr)
        return;
    sInstance->terminate();
    sInstance.reset();
}

znIRenderer::znIRenderer(s32 pMaxSprites, s32 pMaxMaterialChanges)
    : mMaxSprites(std::max(pMaxSprites, 1)), mMaxMaterialChanges(std::max(pMaxMaterialChanges, 1))
{
    ZN_ASSERT(pMaxSprites > 0, "pMaxSprites needs to be greater than 0!\n");
    ZN_ASSERT(pMaxMaterialChanges > 0, "pMaxMaterialChanges needs to be greater than 0!\n");
}

znIRenderer::~znIRenderer() = default;

void znIRenderer::initialise()
{
    znCFontManager::create();
    znCAnimationDataManager::create();
    znCParticleDataManager::create();
    mSprites = arrayMake<znISpriteRenderData*>(mMaxSprites);
    mMaterials = arrayMake<const znCMaterial*>(mMaxMaterialChanges);
    mMaterialSpriteCounts = arrayMake<s32>(mMaxMaterialChanges);
    mTexts = arrayMake<znITextRenderData*>(mMaxSprites);
    mFonts = arrayMake<znIFont*>(mMaxMaterialChanges);
    mFontTextCounts = arrayMake<s32>(mMaxMaterialChanges);
    mItems = arrayMake<const void*>(mMaxSprites * 2);
    platformInitialise();
}

void znIRenderer::terminate()
{
    platformTerminate();
    mJobs.clear();
    znIRenderJob::freeJobsRelease();
    mSprites.reset();
    mMaterials.reset();
    mMaterialSpriteCounts.reset();
    mTexts.reset();
    mFonts.reset();
    mFontTextCounts.reset();
    mItems.reset();
    znCParticleDataManager::destroy();
    znCAnimationDataManager::destroy();
    znCFontManager::destroy();
}

void znIRenderer::frameClear()
{
    screenClear();
}

void znIRenderer::frameBegin()
{
    if (mState == STATE_BATCHING)
        return;
    // What was added outside of a frame belongs to none; its indices are about to lose their meaning.
    mJobs.clear();
    mSpriteCount = 0;
    mTextCount = 0;
    mMaterialIndex = -1;
    mFontIndex = -1;
    mItemCount = 0;
    mItemsSame = true;
    if (znCFontManager* fonts = znCFontManager::instanceGet())
        fonts->frameBegin();
    readCursorsReset();
    mState = STATE_BATCHING;
}

void znIRenderer::frameEnd()
{
    if (mState == STATE_BATCHING)
    {
        mUnchanged = unchangedGet();
        for (const auto& job : mJobs)
            job->execute();
        renderFlush();
        mJobs.clear();
    }
    buffersSwap();
    mState = STATE_IDLE;
}

void znIRenderer::spritesAddToBatch(znISpriteRenderData* const* pData, s32 pCount)
{
    if (pCount < 1)
        return;
    const s32 first = mSpriteCount;
    spriteAddToBatch(pData[0]);
    const s32 room = std::min(pCount, mMaxSprites - 1 - first); // the first one that is too much is logged
    if (mSpriteCount == first)
        return;
    const auto rest = static_cast<std::size_t>(room - 1);
    const void** items = &mItems[static_cast<std::size_t>(mItemCount)];
    mItemsSame = mItemsSame && std::memcmp(items, pData + 1, rest * sizeof *items) == 0;
    std::memcpy(items, pData + 1, rest * sizeof *items);
    std::copy_n(pData + 1, rest, &mSprites[static_cast<std::size_t>(mSpriteCount)]);
    mItemCount += room - 1;
    mSpriteCount += room - 1;
    mMaterialSpriteCounts[static_cast<std::size_t>(mMaterialIndex)] += room - 1;
    if (room < pCount)
        spriteAddToBatch(pData[room]);
}

void znIRenderer::itemAdd(const void* pItem)
{
    const void*& item = mItems[static_cast<std::size_t>(mItemCount++)];
    mItemsSame = mItemsSame && item == pItem;
    item = pItem;
}

bool znIRenderer::unchangedGet()
{
    const u64 changes = znNRenderChanges::contentsGet();
    const u32 glyphUvs = znNFonts::glyphUvGenerationGet();
    const bool unchanged =
        mItemsSame && mItemCount == mLastItemCount && changes == mLastChanges && glyphUvs == mLastGlyphUvs;
    mLastItemCount = mItemCount;
    mLastChanges = changes;
    mLastGlyphUvs = glyphUvs;
    return unchanged;
}

void znIRenderer::spriteAddToBatch(znISpriteRenderData* pData)
{
    const bool room = mSpriteCount + 1 < mMaxSprites;
    ZN_ASSERT(room || mSpritesFullLogged, "No room to batch another sprite. Increase mMaxSprites.\n");
    mSpritesFullLogged = mSpritesFullLogged || !room;
    if (!room)
        return;
    const bool runOpen = !mJobs.empty() && mJobs.back()->typeIdGet() == znCRenderJobSprites::TYPE;
    if (!(runOpen ? materialIncrementIfChanged(*pData) : materialRunAdd(*pData)))
        return;
    if (!runOpen)
        mJobs.push_back(std::make_unique<znCRenderJobSprites>(this, mMaterialIndex));
    itemAdd(pData);
    mSprites[static_cast<std::size_t>(mSpriteCount)] = pData;
    ++mSpriteCount;
    ++mMaterialSpriteCounts[static_cast<std::size_t>(mMaterialIndex)];
}

// False if there is no room for another run.
bool znIRenderer::materialIncrementIfChanged(const znISpriteRenderData& pData)
{
    if (!pData.materialGet().materialDiffers(*mMaterials[static_cast<std::size_t>(mMaterialIndex)]))
        return true;
    const bool spriteJob = mJobs.back()->typeIdGet() == znCRenderJobSprites::TYPE;
    ZN_ASSERT(spriteJob, "Expected back render job to be a sprite job.\n");
    if (!spriteJob || !materialRunAdd(pData))
        return false;
    mJobs.back()->lastIncrement();
    return true;
}

bool znIRenderer::materialRunAdd(const znISpriteRenderData& pData)
{
    const bool room = mMaterialIndex + 1 < mMaxMaterialChanges;
    ZN_ASSERT(room || mMaterialsFullLogged, "No room to batch another material. Increase mMaxMaterialChanges.\n");
    mMaterialsFullLogged = mMaterialsFullLogged || !room;
    if (!room)
        return false;
    ++mMaterialIndex;
    mMaterials[static_cast<std::size_t>(mMaterialIndex)] = &pData.materialGet();
    mMaterialSpriteCounts[static_cast<std::size_t>(mMaterialIndex)] = 0;
    return true;
}

void znIRenderer::textAddToBatch(znITextRenderData* pData)
{
    const bool room = mTextCount + 1 < mMaxSprites;
    ZN_ASSERT(room || mTextsFullLogged, "No room to batch another text. Increase mMaxSprites.\n");
    mTextsFullLogged = mTextsFullLogged || !room;
    if (!room)
        return;
    const bool runOpen = !mJobs.empty() && mJobs.back()->typeIdGet() == znCRenderJobText::TYPE;
    if (!(runOpen ? fontIncrementIfChanged(*pData) : fontRunAdd(*pData)))
        return;
    if (!runOpen)
        mJobs.push_back(std::make_unique<znCRenderJobText>(this, mFontIndex));
    itemAdd(pData);
    mTexts[static_cast<std::size_t>(mTextCount)] = pData;
    ++mTextCount;
    ++mFontTextCounts[static_cast<std::size_t>(mFontIndex)];
}

// False if there is no room for another run.
bool znIRenderer::fontIncrementIfChanged(const znITextRenderData& pData)
{
    if (pData.fontGet() == mFonts[static_cast<std::size_t>(mFontIndex)])
        return true;
    const bool textJob = mJobs.back()->typeIdGet() == znCRenderJobText::TYPE;
    ZN_ASSERT(textJob, "Expected back render job to be a text job.\n");
    if (!textJob || !fontRunAdd(pData))
        return false;
    mJobs.back()->lastIncrement();
    return true;
}

bool znIRenderer::fontRunAdd(const znITextRenderData& pData)
{
    const bool room = mFontIndex + 1 < mMaxMaterialChanges;
    ZN_ASSERT(room || mFontsFullLogged, "No room to batch another font. Increase mMaxMaterialChanges.\n");
    mFontsFullLogged = mFontsFullLogged || !room;
    if (!room)
        return false;
    ++mFontIndex;
    mFonts[static_cast<std::size_t>(mFontIndex)] = pData.fontGet();
    mFontTextCounts[static_cast<std::size_t>(mFontIndex)] = 0;
    return true;
}
