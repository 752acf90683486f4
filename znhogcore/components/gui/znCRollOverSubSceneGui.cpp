#include "znhogcore/components/gui/znCRollOverSubSceneGui.h"

#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "zncore/znNCoreUtils.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/znIHogLevel.h"

namespace
{
// The sub-scene that the entity stands in; null if it stands in none.
const znCSubSceneComponent* subSceneOfGet(const znCEntity& pEntity)
{
    const auto* parent = dynamic_cast<const znCEntity*>(pEntity.parentGet());
    return parent != nullptr ? parent->componentGet<znCSubSceneComponent>() : nullptr;
}

// In the space of the level, which the panel shares.
znPoint levelPosGet(const znCEntity& pEntity)
{
    const znCSubSceneComponent* subScene = subSceneOfGet(pEntity);
    const znPoint& pos = pEntity.posGet();
    if (subScene == nullptr)
        return pos;
    const znPoint& origin = subScene->entityGet()->posGet();
    return znPoint(znNCoreUtils::s32Saturate(s64(origin.mX) + pos.mX),
                   znNCoreUtils::s32Saturate(s64(origin.mY) + pos.mY));
}
} // namespace

void znCRollOverSubSceneGui::messagesRegister()
{
    znCRollOverGui::messagesRegister();
    znCHogMessageDispatcher::instanceGet()->listenerRegister(znCHogMessageDispatcher::LEVEL_LOAD_COMP, this);
}

void znCRollOverSubSceneGui::messagesDeregister()
{
    znCRollOverGui::messagesDeregister();
    znCHogMessageDispatcher::instanceGet()->listenerDeregister(znCHogMessageDispatcher::LEVEL_LOAD_COMP, this);
}

bool znCRollOverSubSceneGui::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znCHogMessageDispatcher::LEVEL_LOAD_COMP && rollOverEntriesGet().empty())
        captionsCollect();
    return znCRollOverGui::messageProcess(pType, pData);
}

void znCRollOverSubSceneGui::captionsCollect()
{
    znIHogLevel* level = znIHogLevel::levelGet();
    if (level == nullptr)
        return;
    std::vector<Entry> entries;
    std::string text;
    for (znCEntity* entity : level->entitiesWithComponentsGet({&typeid(znCNameComponent)}))
        if (znCLocalisedStrings::localisedStringGetIfExists(
                znCNameComponent::get(entity)->baseNameGet() + CAPTION_SUFFIX, text))
            entries.push_back({text, entity});
    rollOverEntriesSet(entries);
}

void znCRollOverSubSceneGui::pointerMoveHandle(const znPoint& pPoint)
{
    const znIHogLevel* level = znIHogLevel::levelGet();
    const znCSubSceneComponent* top = level != nullptr ? level->currentSubSceneGet() : nullptr;
    const s32 topIndex = top != nullptr ? top->indexGet() : 0;
    const auto counts = [topIndex](const Entry& pEntry)
    {
        const znCSubSceneComponent* subScene = subSceneOfGet(*pEntry.mEntity);
        return (subScene != nullptr ? subScene->indexGet() : 0) >= topIndex;
    };
    const Entry* entry = entryFind(pPoint, counts);
    captionShow(entry, entry != nullptr ? levelPosGet(*entry->mEntity) : znPoint(0, 0));
}
