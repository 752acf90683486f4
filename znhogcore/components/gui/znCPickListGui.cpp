#include "znhogcore/components/gui/znCPickListGui.h"

#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znNVectorShuffle.h"
#include "znhogcore/components/gui/znIPickListEntryGui.h"
#include "znhogcore/components/znCDraggableKeyComponent.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/components/znICollectableComponent.h"
#include "znhogcore/src/znCHogEntityFactory.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/znIHogLevel.h"

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <string_view>

namespace
{
constexpr char GROUP_KEY[] = "groupEntries";
constexpr char REQUIRED_KEY[] = "requiredForActCompletion";
constexpr char PRIORITY_TYPES_KEY[] = "priorityEntityTypes";
constexpr char RANDOM_TYPES_KEY[] = "randomEntityTypes";
constexpr char COLLECT_ALL_KEY[] = "collectAllEntities";
constexpr char SLOT_NAME[] = "pickItem"; // and the number
constexpr char COUNT_TEXT_NAME[] = "itemCountText";
constexpr char COMPLETE_SPRITE_NAME[] = "completeSprite";
constexpr s32 ADD_INTERVAL_MS = 100;
constexpr s32 ITEMS_MAX = 1000000; // of a save; a damaged one may say anything

constexpr znCUniqueId MESSAGES[] = {
    znCHogMessageDispatcher::HINT_BUTTON_PRESSED,
    znCHogMessageDispatcher::POST_RESET_LEVEL,
    znCHogMessageDispatcher::LEVEL_LOAD_COMP,
};

const std::string& displayTextGet(const znCEntity& pEntity)
{
    static const std::string NONE;
    const znCNameComponent* name = znCNameComponent::get(&pEntity);
    return name != nullptr ? name->displayTextGet() : NONE;
}

s32 itemsLoad(std::string& pIn)
{
    return std::clamp(znINode::s32Load(pIn), 0, ITEMS_MAX);
}

// A collectable and the entity that it is part of.
struct Collectable
{
    znCEntity* mEntity;
    const znICollectableComponent* mComponent;
};

std::vector<Collectable> levelCollectablesGet()
{
    std::vector<Collectable> collectables;
    if (znIHogLevel* level = znIHogLevel::levelGet())
        for (znCEntity* entity : level->entitiesWithKindGet<znICollectableComponent>())
            collectables.push_back({entity, entity->componentFind<znICollectableComponent>()});
    return collectables;
}
} // namespace

void znCPickListGui::messagesRegister()
{
    for (const znCUniqueId& message : MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerRegister(message, this);
}

void znCPickListGui::messagesDeregister()
{
    for (const znCUniqueId& message : MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerDeregister(message, this);
}

bool znCPickListGui::messageProcess(const znCUniqueId& pType, void*)
{
    if (pType == znCHogMessageDispatcher::HINT_BUTTON_PRESSED)
        return mRequiredForActCompletion && hintGive();
    if (pType == znCHogMessageDispatcher::POST_RESET_LEVEL)
        reset();
    else if (pType == znCHogMessageDispatcher::LEVEL_LOAD_COMP)
    {
        if (mRestored)
            restoredMend();
        if (mRequiredForActCompletion && mTotal <= 0)
            ZN_LOG("The pick list %s has nothing to find but the level waits for it.\n", mEntity->nameGet().c_str());
    }
    return false;
}

// --- from the GUI file ---

void znCPickListGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIMessageListenerGuiComponent::initialiseFromVariableTableDo(pTable);
    mGroupEntries = pTable.boolGet(GROUP_KEY);
    mRequiredForActCompletion = pTable.boolGet(REQUIRED_KEY);
    entriesStore();
    mPriorityTypes = typesFromText(pTable.strGet(PRIORITY_TYPES_KEY));
    mRandomTypes = typesFromText(pTable.strGet(RANDOM_TYPES_KEY));
    requirementSend(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_ADD);
    mTotal = pTable.boolGet(COLLECT_ALL_KEY) ? allEntitiesCount() : static_cast<s32>(mEntries.size());
    itemCountUpdate();
    completeSpriteSet(mTotal == mCollected);
}

void znCPickListGui::entriesStore()
{
    for (s32 i = 0;; ++i)
    {
        const znCEntity* slot = znNGuiChildren::entityFind(*this, SLOT_NAME + std::to_string(i));
        if (slot == nullptr)
            return;
        if (auto* entry = slot->componentFind<znIPickListEntryGui>())
            mEntries.push_back(entry);
    }
}

znCPickListGui::Types znCPickListGui::typesFromText(const std::string& pText)
{
    Types types;
    std::istringstream text(pText);
    for (std::string prefix; text >> prefix;)
        if (const std::type_info* type = znCHogEntityFactory::instanceGet()->entityIdentifierIdGet(prefix))
            types.push_back(type);
    return types;
}

s32 znCPickListGui::allEntitiesCount() const
{
    return typesCount(mPriorityTypes) + typesCount(mRandomTypes);
}

bool znCPickListGui::kindNamedGet(znCEntity& pEntity) const
{
    const auto named = [&pEntity](const Types& pTypes)
    {
        const std::vector<znCEntity*> found = pEntity.entitiesWithComponentsGet(pTypes);
        return std::find(found.begin(), found.end(), &pEntity) != found.end();
    };
    return named(mPriorityTypes) || named(mRandomTypes);
}

s32 znCPickListGui::typesCount(const Types& pTypes) const
{
    znIHogLevel* level = znIHogLevel::levelGet();
    if (level == nullptr)
        return 0;
    const std::vector<znCEntity*> entities = level->entitiesWithComponentsGet(pTypes);
    if (!mGroupEntries)
        return static_cast<s32>(entities.size());
    std::set<std::string_view> texts;
    for (const znCEntity* entity : entities)
        texts.insert(displayTextGet(*entity));
    return static_cast<s32>(texts.size());
}

void znCPickListGui::totalSet(s32 pTotal)
{
    mTotal = pTotal;
    itemCountUpdate();
}

// --- play ---

void znCPickListGui::update(s32 pDeltaMs)
{
    entriesPoll();
    const bool slotFree = std::any_of(mEntries.begin(), mEntries.end(),
                                      [](const znIPickListEntryGui* pEntry) { return pEntry->freeGet(); });
    if (!slotFree)
    {
        slotsCheck();
        return;
    }
    mSlotsChecked = false;
    if (mAdded >= mTotal)
        return;
    mAddTimerMs -= pDeltaMs;
    if (mAddTimerMs >= 1)
        return;
    mAddTimerMs = ADD_INTERVAL_MS;
    entityAddToList();
}

void znCPickListGui::entriesPoll()
{
    for (znIPickListEntryGui* entry : mEntries)
    {
        if (!entry->finishedConsume())
            continue;
        ++mCollected;
        if (mCollected == mTotal)
            listComplete();
        itemCountUpdate();
    }
}

// What is to be shown first must fit. While no slot is free no object becomes a candidate, so one look is enough.
void znCPickListGui::slotsCheck()
{
    if (mSlotsChecked || mSlotsLogged)
        return;
    mSlotsChecked = true;
    mSlotsLogged = !candidatesGet(mPriorityTypes).empty();
    ZN_ASSERT(!mSlotsLogged, "Not enough slots in the pick list to handle all priority entity types.\n");
}

void znCPickListGui::entityAddToList()
{
    std::vector<znCEntity*> entities = candidatesPick(mPriorityTypes);
    if (entities.empty())
        entities = candidatesPick(mRandomTypes);
    if (entities.empty())
    {
        ZN_ASSERT(!mRequiredForActCompletion, "Not enough entities in scene to fill the pick list.\n");
        mAdded = mTotal;
        listComplete();
        return;
    }
    znIPickListEntryGui* slot = randomAvailableSlotGet();
    if (slot == nullptr)
        return;
    slot->activate(entities);
    ++mAdded;
}

// The level's objects of those types that are on no list and were not found, in its order.
std::vector<znCEntity*> znCPickListGui::candidatesGet(const Types& pTypes)
{
    znIHogLevel* level = znIHogLevel::levelGet();
    if (level == nullptr || pTypes.empty())
        return {};
    std::vector<znCEntity*> entities = level->entitiesWithComponentsGet(pTypes);
    std::erase_if(entities,
                  [](const znCEntity* pEntity)
                  {
                      const auto* collectable = pEntity->componentFind<znICollectableComponent>();
                      return collectable == nullptr || !collectable->inactiveGet();
                  });
    return entities;
}

// The objects of an item by chance.
std::vector<znCEntity*> znCPickListGui::candidatesPick(const Types& pTypes) const
{
    std::vector<znCEntity*> candidates = candidatesGet(pTypes);
    znNCoreUtils::vectorShuffle(candidates);
    if (mGroupEntries)
        return entitiesWithSameTextGet(candidates);
    if (!candidates.empty())
        candidates.resize(1);
    return candidates;
}

std::vector<znCEntity*> znCPickListGui::entitiesWithSameTextGet(const std::vector<znCEntity*>& pEntities) const
{
    std::vector<znCEntity*> group;
    for (znCEntity* entity : pEntities)
        if (group.empty() || displayTextGet(*entity) == displayTextGet(*group.front()))
            group.push_back(entity);
    return group;
}

znIPickListEntryGui* znCPickListGui::randomAvailableSlotGet() const
{
    std::vector<znIPickListEntryGui*> entries = mEntries;
    znNCoreUtils::vectorShuffle(entries);
    const auto slot = std::find_if(entries.begin(), entries.end(),
                                   [](const znIPickListEntryGui* pEntry) { return pEntry->freeGet(); });
    ZN_ASSERT(slot != entries.end(), "Haven't found an available gui slot.\n");
    return slot != entries.end() ? *slot : nullptr;
}

znIPickListEntryGui* znCPickListGui::entryForTextGet(const std::string& pText) const
{
    const auto found = std::find_if(mEntries.begin(), mEntries.end(),
                                    [&](const znIPickListEntryGui* pEntry)
                                    { return !pEntry->freeGet() && pEntry->textGet() == pText; });
    return found != mEntries.end() ? *found : nullptr;
}

void znCPickListGui::itemCountUpdate()
{
    const znCEntity* entity = znNGuiChildren::entityFind(*this, COUNT_TEXT_NAME);
    if (entity == nullptr)
        return;
    auto* text = entity->componentFind<znCTextSpriteComponent>();
    ZN_ASSERT(text != nullptr, "Expected ItemCountText to have a znCTextSpriteComponent.\n");
    if (text != nullptr)
        text->textSet(std::to_string(mCollected) + " / " + std::to_string(mTotal));
}

void znCPickListGui::completeSpriteSet(bool pActive)
{
    znNGuiChildren::activeSet(*this, COMPLETE_SPRITE_NAME, pActive);
}

void znCPickListGui::listComplete()
{
    completeSpriteSet(true);
    if (mMet)
        return;
    mMet = true;
    requirementSend(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_MET);
}

void znCPickListGui::requirementSend(const znCUniqueId& pType)
{
    if (!mRequiredForActCompletion)
        return;
    std::string name = mEntity->nameGet();
    znCHogMessageDispatcher::instanceGet()->messageSend(pType, &name);
}

void znCPickListGui::reset()
{
    for (znIPickListEntryGui* entry : mEntries)
        entry->reset();
    mAdded = 0;
    mCollected = 0;
    mMet = false;
    itemCountUpdate();
    requirementSend(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_CLEAR);
    completeSpriteSet(false);
}

// --- hints ---

// Points at something else with each press, until all have had their turn.
bool znCPickListGui::hintGive()
{
    znIHogLevel* level = znIHogLevel::levelGet();
    const znCSubSceneComponent* subScene = level != nullptr ? level->currentSubSceneGet() : nullptr;
    if (subScene == nullptr)
        return false;
    std::vector<znCEntity*> targets;
    for (const znIPickListEntryGui* entry : mEntries)
        entry->uncollectedEntitiesInSubSceneAddToVec(targets, subScene->indexGet());
    std::vector<znCEntity*> keys =
        subScene->entityGet()->entitiesWithComponentsGet({&typeid(znCDraggableKeyComponent)});
    std::erase_if(keys, [](const znCEntity* pKey) { return !pKey->activeInTreeGet(); });
    targets.insert(targets.end(), keys.begin(), keys.end());
    if (targets.empty())
        return false;
    znCEntity* first = targets.front();
    std::erase_if(targets, [this](const znCEntity* pTarget)
                  { return std::find(mHinted.begin(), mHinted.end(), pTarget) != mHinted.end(); });
    if (targets.empty())
    {
        mHinted.clear();
        targets = keys;
    }
    znNCoreUtils::vectorShuffle(targets);
    znCEntity* target = targets.empty() ? first : targets.front();
    level->hintShow(target);
    mHinted.push_back(target);
    return true;
}

// --- saving ---

void znCPickListGui::mySave(std::string& pOut)
{
    znINode::s32Save(pOut, mTotal);
    znINode::s32Save(pOut, mAdded);
    znINode::s32Save(pOut, mCollected);
}

void znCPickListGui::myLoad(std::string& pIn)
{
    const s32 total = itemsLoad(pIn);
    mTotal = total > 0 ? total : mTotal; // a save from before the list has none
    mAdded = itemsLoad(pIn);
    mCollected = itemsLoad(pIn);
    mRestored = true;
}

// Objects that are found already, or just being found, are no item's any more. Of those with an item's text the ones
// that can be found are its own; others of that text wait for their turn.
void znCPickListGui::myPostLoad()
{
    std::map<std::string_view, std::vector<znCEntity*>> active; // by display text
    std::map<std::string_view, std::vector<znCEntity*>> inactive;
    for (const Collectable& collectable : levelCollectablesGet())
        if (!collectable.mComponent->collectionStartedGet())
            (collectable.mComponent->inactiveGet() ? inactive : active)[displayTextGet(*collectable.mEntity)].push_back(
                collectable.mEntity);
    for (znIPickListEntryGui* entry : mEntries)
        if (!entry->freeGet())
            entry->entitiesSet(active.contains(entry->textGet()) ? active[entry->textGet()]
                                                                 : inactive[entry->textGet()]);
    itemCountUpdate();
}

void znCPickListGui::restoredMend()
{
    mRestored = false;
    lostItemsRelease();
    const auto taken = std::count_if(mEntries.begin(), mEntries.end(),
                                     [](const znIPickListEntryGui* pEntry) { return !pEntry->freeGet(); });
    // A list that had run out of objects looks for others once more, and ends again.
    mAdded = mCollected + static_cast<s32>(taken);
    mTotal = std::max(mTotal, mAdded);
    itemCountUpdate();
    if (mTotal > 0 && mCollected == mTotal)
        listComplete();
}

// Items that nothing in the level can end any more: their objects have left the scene since it was saved.
void znCPickListGui::lostItemsRelease()
{
    std::map<std::string_view, s32> pending; // objects that will be found, by display text
    for (const Collectable& collectable : levelCollectablesGet())
        if (!collectable.mComponent->inactiveGet() &&
            (!collectable.mComponent->collectionStartedGet() || collectable.mComponent->collectingGet()))
            ++pending[displayTextGet(*collectable.mEntity)];
    for (znIPickListEntryGui* entry : mEntries)
    {
        if (!entry->waitingGet())
            continue;
        const auto found = pending.find(entry->textGet());
        if (found != pending.end())
            entry->countLimit(found->second);
        else
            entry->reset();
    }
}
