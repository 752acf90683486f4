#include "znappcore/src/znCEntityFactory.h"

#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"

namespace
{
std::unique_ptr<znCEntityFactory> sInstance;
}

znCEntityFactory::~znCEntityFactory() = default;

void znCEntityFactory::create()
{
    instanceSet(std::unique_ptr<znCEntityFactory>(new znCEntityFactory), "znCEntityFactory");
}

void znCEntityFactory::instanceSet(std::unique_ptr<znCEntityFactory> pFactory, const char* pClassName)
{
    ZN_ASSERT(sInstance == nullptr, "Already created %s.\n", pClassName);
    sInstance = std::move(pFactory);
    sInstance->constructionPlansRegister();
}

znCEntityFactory* znCEntityFactory::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znCEntityFactory::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    sInstance.reset();
}

std::string znCEntityFactory::entityPrefixGet(const std::string& pName)
{
    const std::size_t dash = pName.find('-');
    ZN_ASSERT(dash != std::string::npos, "Expected a prefix on entity name %s.\n", pName.c_str());
    return dash == std::string::npos ? std::string() : pName.substr(0, dash + 1);
}

znCEntity* znCEntityFactory::entityConstruct(const std::string& pName)
{
    const std::vector<znCUniqueId>* plan = constructionPlanFind(entityPrefixGet(pName));
    ZN_ASSERT(plan != nullptr, "Failed to find a construction plan to construct %s.\n", pName.c_str());
    if (plan == nullptr)
        return nullptr;
    auto entity = std::make_unique<znCEntity>(pName);
    for (const znCUniqueId& type : *plan)
        entity->componentAdd(type);
    entity->treeInitialise();
    return entity.release();
}

void znCEntityFactory::constructionPlansRegister()
{
    mBaseRegisterCalled = false;
    constructionPlansRegisterDo();
    ZN_ASSERT(mBaseRegisterCalled, "All derived classes need to call super::constructionPlansRegisterDo()\n");
}

void znCEntityFactory::constructionPlansRegisterDo()
{
    mBaseRegisterCalled = true;
}

void znCEntityFactory::constructionPlanAdd(const std::string& pPrefix, const std::vector<znCUniqueId>& pPlan)
{
    mConstructionPlans.insert_or_assign(pPrefix, pPlan);
}

const std::vector<znCUniqueId>* znCEntityFactory::constructionPlanFind(const std::string& pPrefix) const
{
    const auto plan = mConstructionPlans.find(pPrefix);
    return plan == mConstructionPlans.end() ? nullptr : &plan->second;
}
