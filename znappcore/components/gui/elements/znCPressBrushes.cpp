#include "znappcore/components/gui/elements/znCPressBrushes.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/znCResourceName.h"

znCBrushPtr znCPressBrushes::brushGet(const std::string& pImage)
{
    znCBrushManager* brushes = znCBrushManager::instanceGet();
    return brushes != nullptr ? brushes->brushGet(znCResourceName(pImage, znCResourceName::GAME_DATA), true)
                              : znCBrushPtr();
}

void znCPressBrushes::init(znCEntity& pEntity, const std::string& pUpImage, const std::string& pDownImage)
{
    mSprite = pEntity.componentAdd<znCSpriteComponent>();
    mUpBrush = brushGet(pUpImage);
    if (!pDownImage.empty())
        mDownBrush = brushGet(pDownImage);
    if (mSprite != nullptr)
        mSprite->brushSet(mUpBrush);
}

bool znCPressBrushes::show(bool pHighlighted)
{
    if (mDownBrush == nullptr || mSprite == nullptr)
        return false;
    mSprite->brushSet(pHighlighted ? mDownBrush : mUpBrush);
    return true;
}

void znCPressBrushes::otherShow(const znCBrushPtr& pBrush)
{
    if (mSprite != nullptr)
        mSprite->brushSet(pBrush != nullptr ? pBrush : mUpBrush);
}
