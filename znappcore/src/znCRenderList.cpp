#include "znappcore/src/znCRenderList.h"

#include "znappcore/src/znCSprite.h"
#include "znappcore/znINode.h"
#include "znappcore/znIRenderer.h"
#include "znappcore/znNRenderChanges.h"

void znCRenderList::clear(u64 pStructure)
{
    mEntries.clear();
    mSprites.clear();
    mStructure = pStructure;
}

void znCRenderList::spriteRender(znCSprite& pSprite)
{
    pSprite.render();
    znISpriteRenderData* data = pSprite.renderDataGet();
    if (data == nullptr)
        return;
    const bool runOpen = !mEntries.empty() && mEntries.back().mNode == nullptr &&
                         !data->materialGet().materialDiffers(mSprites.back()->materialGet());
    if (!runOpen)
        mEntries.push_back({nullptr, mSprites.size(), 0});
    ++mEntries.back().mCount;
    mSprites.push_back(data);
}

void znCRenderList::nodeRender(znINode& pNode)
{
    mEntries.push_back({&pNode, 0, 0});
    pNode.render();
}

bool znCRenderList::isCurrent() const
{
    return mStructure == znNRenderChanges::structureGet();
}

znINode* znCRenderList::render() const
{
    znIRenderer* renderer = mSprites.empty() ? nullptr : znIRenderer::instanceGet();
    for (const Entry& entry : mEntries)
        if (entry.mNode == nullptr && renderer != nullptr)
            renderer->spritesAddToBatch(&mSprites[entry.mFirst], entry.mCount);
        else if (entry.mNode != nullptr)
        {
            entry.mNode->render();
            if (!isCurrent())
                return entry.mNode;
        }
    return nullptr;
}
