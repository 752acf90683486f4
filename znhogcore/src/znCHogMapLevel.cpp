#include "znhogcore/src/znCHogMapLevel.h"

#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/znCEmptyMessageData.h"
#include "zncore/znCResourceName.h"
#include "znhogcore/components/gui/znCMapPopUpFVGui.h"
#include "znhogcore/components/gui/znCMapPopUpGui.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCNavigateComponent.h"
#include "znhogcore/components/znCSubSceneExitComponent.h"
#include "znhogcore/components/znCSubSceneNavigateComponent.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/src/znCHogUserSavedData.h"

#include <cmath>

namespace
{
constexpr char MASK[] = "MASK-";
constexpr char GLOW[] = "-g";
constexpr char MEDAL[] = "-p";
constexpr char OVERLAY[] = "-r";
constexpr char CAPTION[] = "RO";
constexpr char OVERRIDE[] = "Override";
constexpr char MEDAL_FOLDER[] = "gui/mapHUD/mapStars/";
constexpr char MEDAL_EXTENSION[] = ".png";
constexpr std::size_t OFFER_SHORT = 8; // an offer that reveals all is longer
// The glow's alpha goes through a sine between 0.5 and 1 in 100 * 2 pi milliseconds.
constexpr float GLOW_STEP_MS = 100.0f;
constexpr float GLOW_DEPTH = 0.25f;
constexpr float GLOW_MIDDLE = 0.75f;

std::string offerGet()
{
    return znCHogUserSavedData::instanceGet()->strGet(znCHogUserSavedData::MAP_LEVEL);
}

// The scene that an entity's base name speaks of: what stands between its first and its last "-".
std::string sceneGet(const std::string& pBaseName)
{
    const std::size_t first = pBaseName.find('-');
    const std::string scene = first == std::string::npos ? pBaseName : pBaseName.substr(first + 1);
    return scene.substr(0, scene.rfind('-'));
}

bool maskGet(const std::string& pBaseName)
{
    return pBaseName.find(MASK) != std::string::npos &&
           (pBaseName.ends_with(GLOW) || pBaseName.ends_with(MEDAL) || pBaseName.ends_with(OVERLAY));
}

template <class T>
void popUpCreate(znINode* pMap, const std::string& pTarget)
{
    znCEntity* gui =
        znIGuiComponent::guiCreateFromFile(znCResourceName(T::FILE_NAME, znCResourceName::GAME_DATA), pMap, true);
    if (auto* popUp = gui != nullptr ? gui->componentGet<T>() : nullptr)
        popUp->populate(pTarget);
}
} // namespace

void znCHogMapLevel::messagesRegister()
{
    znIHogLevel::messagesRegister();
    znCHogMessageDispatcher::instanceGet()->listenerRegister(znCHogMessageDispatcher::NAVIGATE_TAP, this);
}

void znCHogMapLevel::messagesDeregister()
{
    znIHogLevel::messagesDeregister();
    znCHogMessageDispatcher::instanceGet()->listenerDeregister(znCHogMessageDispatcher::NAVIGATE_TAP, this);
}

bool znCHogMapLevel::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znCHogMessageDispatcher::NAVIGATE_TAP)
    {
        znCGuiMessageDispatcher::instanceGet()->messageSend(znCRollOverGui::CLOSE_ROLL_OVER,
                                                            znCEmptyMessageData::sharedGet());
        popUpOpen(*static_cast<const std::string*>(pData));
    }
    return znIHogLevel::messageProcess(pType, pData);
}

void znCHogMapLevel::update(s32 pDeltaMs)
{
    znIHogLevel::update(pDeltaMs);
    if (mGlowEntity == nullptr)
        return;
    mGlowTimeMs += pDeltaMs;
    const float alpha = std::sin(static_cast<float>(mGlowTimeMs) / GLOW_STEP_MS) * GLOW_DEPTH + GLOW_MIDDLE;
    mGlowEntity->componentGet<znCSpriteComponent>()->colourSet(znCColour(1.0f, 1.0f, 1.0f, alpha));
}

void znCHogMapLevel::postLoadDo()
{
    const std::string offer = offerGet();
    mRevealAll = offer.size() > OFFER_SHORT && offer.find(REVEAL_ALL) != std::string::npos;
    spritesSet();
    for (znCEntity* entity : entitiesWithComponentsGet({&typeid(znCSubSceneExitComponent)}))
        entity->activeSet(false);
    rollOversSet();
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::ADDED_ENTRY,
                                                        znCEmptyMessageData::sharedGet());
    znCHogUserSavedData::instanceGet()->strSet(znCHogUserSavedData::LEVEL_STATE + mLevelName, "");
}

void znCHogMapLevel::spritesSet()
{
    for (znCEntity* entity : entitiesWithComponentsGet({&typeid(znCSpriteComponent)}))
    {
        const auto* name = entity->componentGet<znCNameComponent>();
        if (name == nullptr)
            continue;
        const std::string& baseName = name->baseNameGet();
        if (entity->componentGet<znCNavigateComponent>() != nullptr)
            placeSet(entity, sceneGet(baseName));
        else if (entity->componentGet<znCSubSceneNavigateComponent>() != nullptr)
            mRollOvers.push_back({znCLocalisedStrings::localisedStringGet(baseName + CAPTION), entity});
        else if (maskGet(baseName))
            maskSet(entity, baseName, sceneGet(baseName));
    }
}

void znCHogMapLevel::placeSet(znCEntity* pEntity, const std::string& pScene)
{
    const bool open = mRevealAll || znCHogUserSavedData::instanceGet()->levelVisitedGet(pScene) || pScene == offerGet();
    pEntity->activeSet(open);
    pEntity->componentGet<znCNavigateComponent>()->navigateActiveSet(open);
    mRollOvers.push_back({znCLocalisedStrings::localisedStringGet(pScene + CAPTION), pEntity});
}

void znCHogMapLevel::maskSet(znCEntity* pEntity, const std::string& pBaseName, const std::string& pScene)
{
    pEntity->activeSet(true);
    const bool glow = pBaseName.ends_with(GLOW);
    if (glow && pScene == offerGet())
        mGlowEntity = pEntity;
    else if (glow || !(mRevealAll || znCHogUserSavedData::instanceGet()->levelVisitedGet(pScene)))
        pEntity->activeSet(false);
    else if (pBaseName.ends_with(MEDAL) && !mRevealAll)
        medalSet(pEntity, pScene);
}

void znCHogMapLevel::medalSet(znCEntity* pEntity, const std::string& pScene)
{
    const znCResourceName medal(MEDAL_FOLDER + medalGet(pScene) + MEDAL_EXTENSION, znCResourceName::GAME_DATA);
    pEntity->componentGet<znCSpriteComponent>()->brushSet(znCBrushManager::instanceGet()->brushGet(medal, false));
}

void znCHogMapLevel::rollOversSet()
{
    const std::vector<znCEntity*> captions = entitiesWithKindGet<znCRollOverGui>();
    if (!captions.empty())
        captions.front()->componentFind<znCRollOverGui>()->rollOverEntriesSet(mRollOvers);
}

void znCHogMapLevel::popUpOpen(const std::string& pTarget)
{
    if (pTarget == offerGet())
        popUpCreate<znCMapPopUpFVGui>(this, pTarget);
    else
        popUpCreate<znCMapPopUpGui>(this, pTarget);
}

std::string znCHogMapLevel::nextLevelResolve() const
{
    const std::string offer = offerGet();
    const std::string instead = mVariables.strGet(offer + OVERRIDE);
    return instead.empty() ? offer : instead;
}

std::string znCHogMapLevel::medalGet(const std::string& pLevel)
{
    s32 bonusCollected = 0;
    s32 bonusTotal = 0;
    s32 silhouetteCollected = 0;
    s32 silhouetteTotal = 0;
    znCMapPopUpGui::levelStatsGet(pLevel, bonusCollected, bonusTotal, silhouetteCollected, silhouetteTotal);
    const bool bonus = bonusCollected == bonusTotal;
    const bool silhouette = silhouetteCollected == silhouetteTotal;
    if (bonus && silhouette)
        return GOLD;
    return bonus || silhouette ? "silver" : "bronze";
}
