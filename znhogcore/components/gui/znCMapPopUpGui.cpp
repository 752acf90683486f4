#include "znhogcore/components/gui/znCMapPopUpGui.h"

#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/src/znCScreenFade.h"
#include "znappcore/znINode.h"
#include "znhogcore/components/znCBonusEntityCountComponent.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/src/znCHogMapLevel.h"
#include "znhogcore/src/znCHogUserSavedData.h"

namespace
{
constexpr char NAME_TEXT[] = "ScenePopupDestintationText";
constexpr char SCORE_TEXT[] = "ScenePopupRoundScore";
constexpr char BONUS_TEXT[] = "ScenePopupTrashText";
constexpr char SILHOUETTE_TEXT[] = "ScenePopupLostFoundText";
constexpr char PERFECT_TEXT[] = "ScenePopupPerfectText";
constexpr char GO[] = "ScenePopupGoButton";

std::string countGet(const char* pKey, s32 pCollected, s32 pTotal)
{
    return znCLocalisedStrings::localisedStringGet(pKey) + std::to_string(pCollected) +
           znCLocalisedStrings::localisedStringGet("numOfNum") + std::to_string(pTotal);
}
} // namespace

void znCMapPopUpGui::populate(const std::string& pLevel)
{
    mLevel = pLevel;
    znNGuiChildren::textSet(*this, NAME_TEXT, znCLocalisedStrings::localisedStringGet(pLevel));
    znNGuiChildren::textSet(*this, SCORE_TEXT, "");
    levelStatsGet(pLevel, mBonusCollected, mBonusTotal, mSilhouetteCollected, mSilhouetteTotal);
    znNGuiChildren::textSet(*this, BONUS_TEXT, countGet("trashInfo", mBonusCollected, mBonusTotal));
    znNGuiChildren::textSet(*this, SILHOUETTE_TEXT, countGet("lostFoundInfo", mSilhouetteCollected, mSilhouetteTotal));
    const bool perfect = znCHogMapLevel::medalGet(pLevel) == znCHogMapLevel::GOLD;
    znNGuiChildren::textSet(*this, PERFECT_TEXT, perfect ? znCLocalisedStrings::localisedStringGet("perfect") : "");
}

bool znCMapPopUpGui::onButtonClicked(znCButtonComponent* pButton)
{
    if (pButton->entityGet()->nameGet() != GO)
        return false;
    znCScreenFade::instanceGet()->fadeOut(znCHogCoreMain::SCREEN_FADE_MS);
    znCHogCoreMain::instanceGet()->nextScreenSet(mLevel);
    return true;
}

void znCMapPopUpGui::levelStatsGet(const std::string& pLevel, s32& pBonusCollected, s32& pBonusTotal,
                                   s32& pSilhouetteCollected, s32& pSilhouetteTotal)
{
    std::string state = znCHogUserSavedData::instanceGet()->strGet(znCHogUserSavedData::LEVEL_STATE + pLevel);
    const std::size_t marker = state.find(znCBonusEntityCountComponent::markerGet());
    if (marker == std::string::npos)
        return;
    state.erase(0, marker);
    znINode::strLoad(state);
    pBonusCollected = znINode::s32Load(state);
    pBonusTotal = znINode::s32Load(state);
    pSilhouetteCollected = znINode::s32Load(state);
    pSilhouetteTotal = znINode::s32Load(state);
}
