#include "znappcore/src/znCEntity.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCComponentFactory.h"
#include "znappcore/znIMessageListener.h"
#include "zncore/debug/znIDebug.h"

#include <algorithm>
#include <typeinfo>

znCEntity::znCEntity(const std::string& pName) : znINode(pName) {}

znCEntity::~znCEntity()
{
    // Each is out of the entity before its end: a destructor that looks around finds living neighbours only.
    while (!mComponentsVector.empty() || !mPendingComponents.empty())
    {
        pendingComponentsJoin();
        std::unique_ptr<znIComponent> component = std::move(mComponentsVector.front());
        mComponentsVector.erase(mComponentsVector.begin());
        componentDelete(std::move(component));
    }
}

void znCEntity::componentDelete(std::unique_ptr<znIComponent> pComponent)
{
    if (pComponent == nullptr)
        return;
    if (auto* listener = dynamic_cast<znIMessageListener*>(pComponent.get()))
        listener->messagesDeregister();
    std::erase_if(mComponentsMap, [&](const auto& pEntry) { return pEntry.second == pComponent.get(); });
    stepsReview();
}

// Which steps of the walks this node can be passed over in. A derived class may override them: it is always called.
void znCEntity::stepsReview()
{
    if (typeid(*this) != typeid(znCEntity))
        return stepsChangeMark();
    mUpdates = !mPendingComponents.empty() || eventHeard(znIComponent::EVENT_UPDATE);
    mRenders = eventHeard(znIComponent::EVENT_RENDER);
    mAppliesMatrix = eventHeard(znIComponent::EVENT_MATRIX);
    const auto drawing = [](const auto& pComponent)
    {
        return pComponent->eventHeard(znIComponent::EVENT_RENDER) || pComponent->eventHeard(znIComponent::EVENT_MATRIX);
    };
    const auto first = std::find_if(mComponentsVector.begin(), mComponentsVector.end(), drawing);
    const bool alone = first != mComponentsVector.end() && std::none_of(first + 1, mComponentsVector.end(), drawing);
    znIComponent* only = alone ? first->get() : nullptr;
    mSprite = only != nullptr && typeid(*only) == typeid(znCSpriteComponent)
                  ? &static_cast<znCSpriteComponent&>(*only).spriteGet()
                  : nullptr;
    stepsChangeMark();
}

bool znCEntity::eventHeard(u8 pEvent) const
{
    return std::any_of(mComponentsVector.begin(), mComponentsVector.end(),
                       [pEvent](const auto& pComponent) { return pComponent->eventHeard(pEvent); });
}

// Runs pEvent on each component. By place: an event may add and remove components; one within another leaves the
// entity iterating.
template <class Event>
void znCEntity::forward(Event pEvent)
{
    const bool wasIterating = mIterating;
    mIterating = true;
    for (std::size_t i = 0; i < mComponentsVector.size(); ++i)
        pEvent(*mComponentsVector[i]);
    mIterating = wasIterating;
}

void znCEntity::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    forward([&](znIComponent& pComponent) { pComponent.initialiseFromVariableTable(pTable); });
}

void znCEntity::update(s32 pDeltaMs)
{
    forward([&](znIComponent& pComponent) { pComponent.update(pDeltaMs); });
    if (!mPendingComponents.empty())
        pendingComponentsJoin();
}

void znCEntity::render()
{
    forward([](znIComponent& pComponent) { pComponent.render(); });
}

void znCEntity::posChangeHandle()
{
    forward([](znIComponent& pComponent) { pComponent.posChangeHandle(); });
}

void znCEntity::matrixApply()
{
    forward([](znIComponent& pComponent) { pComponent.matrixApply(); });
}

void znCEntity::mySave(std::string& pOut)
{
    boolSave(pOut, mActive);
    for (std::size_t i = 0; i < mComponentsVector.size(); ++i)
        mComponentsVector[i]->mySave(pOut);
}

void znCEntity::myLoad(std::string& pIn)
{
    activeSet(boolLoad(pIn));
    for (std::size_t i = 0; i < mComponentsVector.size(); ++i)
        mComponentsVector[i]->myLoad(pIn);
}

void znCEntity::myPostLoad()
{
    for (std::size_t i = 0; i < mComponentsVector.size(); ++i)
        mComponentsVector[i]->myPostLoad();
}

void znCEntity::pendingComponentsJoin()
{
    for (auto& [component, type] : mPendingComponents)
        componentEnter(type, std::move(component));
    mPendingComponents.clear();
}

void znCEntity::componentEnter(const znCUniqueId& pType, std::unique_ptr<znIComponent> pComponent)
{
    mComponentsMap.emplace(pType.idGet(), pComponent.get());
    mComponentsVector.push_back(std::move(pComponent));
    stepsReview();
}

znIComponent* znCEntity::componentAdd(const znCUniqueId& pType)
{
    ZN_ASSERT(componentGet(pType) == nullptr, "Component type already exists in this entity.\n");
    znCComponentFactory* factory = znCComponentFactory::instanceGet();
    if (factory == nullptr)
        return nullptr;
    std::unique_ptr<znIComponent> component(factory->componentCreate(this, pType));
    znIComponent* added = component.get();
    if (component == nullptr)
        return nullptr;
    if (mIterating)
    {
        mPendingComponents.emplace_back(std::move(component), pType);
        stepsReview();
    }
    else
        componentEnter(pType, std::move(component));
    return added;
}

void znCEntity::componentRemove(const znCUniqueId& pType)
{
    ZN_ASSERT(!mIterating, "Removing a component while iterators exist.\n");
    const auto entry = mComponentsMap.find(pType.idGet());
    ZN_ASSERT(entry != mComponentsMap.end(), "Component not found to remove.\n");
    if (entry == mComponentsMap.end())
        return;
    const auto place = std::find_if(mComponentsVector.begin(), mComponentsVector.end(),
                                    [&](const auto& pComponent) { return pComponent.get() == entry->second; });
    ZN_ASSERT(place != mComponentsVector.end(), "Failed to find the component in mComponentsVector.\n");
    mComponentsMap.erase(entry);
    if (place == mComponentsVector.end())
        return;
    std::unique_ptr<znIComponent> component = std::move(*place);
    mComponentsVector.erase(place);
    componentDelete(std::move(component));
}

znIComponent* znCEntity::componentGet(const znCUniqueId& pType) const
{
    const auto entry = mComponentsMap.find(pType.idGet());
    if (entry != mComponentsMap.end())
        return entry->second;
    for (const auto& [component, type] : mPendingComponents)
        if (type == pType)
            return component.get();
    return nullptr;
}

bool znCEntity::componentOfClassHeld(const std::vector<const std::type_info*>& pClasses) const
{
    const auto isWanted = [&](const znIComponent& pComponent)
    {
        return std::any_of(pClasses.begin(), pClasses.end(),
                           [&](const std::type_info* pClass) { return *pClass == typeid(pComponent); });
    };
    return std::any_of(mComponentsVector.begin(), mComponentsVector.end(),
                       [&](const auto& pComponent) { return isWanted(*pComponent); }) ||
           std::any_of(mPendingComponents.begin(), mPendingComponents.end(),
                       [&](const auto& pPending) { return isWanted(*pPending.first); });
}

namespace
{
// Calls pVisit with the entities at and below pNode, children before parents, until it returns true.
template <class Visit>
bool entitiesVisit(znINode& pNode, const Visit& pVisit)
{
    for (znINode* child : pNode.childrenGet())
        if (entitiesVisit(*child, pVisit))
            return true;
    auto* entity = dynamic_cast<znCEntity*>(&pNode);
    return entity != nullptr && pVisit(*entity);
}
} // namespace

znCEntity* znCEntity::entityWithComponentFind(const std::type_info& pClass)
{
    znCEntity* found = nullptr;
    const std::vector<const std::type_info*> classes{&pClass};
    entitiesVisit(*this,
                  [&](znCEntity& pEntity)
                  {
                      found = pEntity.componentOfClassHeld(classes) ? &pEntity : nullptr;
                      return found != nullptr;
                  });
    return found;
}

std::vector<znCEntity*> znCEntity::entitiesWithComponentsGet(const std::vector<const std::type_info*>& pClasses)
{
    std::vector<znCEntity*> found;
    entitiesVisit(*this,
                  [&](znCEntity& pEntity)
                  {
                      if (pEntity.componentOfClassHeld(pClasses))
                          found.push_back(&pEntity);
                      return false;
                  });
    return found;
}
