#include "znhogcore/src/znCHogEntityFactory.h"

#include "znappcore/components/znCAnimatingSpriteComponent.h"
#include "znappcore/components/znCParticleEmitterComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCComponentFactory.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "znhogcore/components/znCBonusComponent.h"
#include "znhogcore/components/znCBonusListComponent.h"
#include "znhogcore/components/znCBonusSilhouetteComponent.h"
#include "znhogcore/components/znCDraggableKeyComponent.h"
#include "znhogcore/components/znCHiddenPickableComponent.h"
#include "znhogcore/components/znCHotComponent.h"
#include "znhogcore/components/znCLockComponent.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCNavigateComponent.h"
#include "znhogcore/components/znCRandomPickableComponent.h"
#include "znhogcore/components/znCRequiredPickableComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/components/znCSubSceneExitComponent.h"
#include "znhogcore/components/znCSubSceneNavigateComponent.h"
#include "znhogcore/components/znCSubSceneViewComponent.h"
#include "znhogcore/components/znCTappableCollectableComponent.h"
#include "znhogcore/components/znCTaskComponent.h"

namespace
{
constexpr char PREFIX_PLAIN[] = "MASK-";

struct Plan
{
    const char* mKey;
    std::vector<znCUniqueId> mComponents;        // in order of creation, behind znCNameComponent
    const std::type_info* mIdentifier = nullptr; // where pick lists can list the kind
};

constexpr znCUniqueId SPRITE = znCSpriteComponent::TYPE;
constexpr znCUniqueId TAPPABLE = znCTappableCollectableComponent::TYPE;
constexpr znCUniqueId ANIMATING_SPRITE = znCAnimatingSpriteComponent::TYPE;

std::vector<Plan> plansGet()
{
    return {
        {"Background",
         {znCSubSceneComponent::TYPE, znCSubSceneViewComponent::TYPE, znCSubSceneExitComponent::TYPE, SPRITE}},
        {PREFIX_PLAIN, {SPRITE}},
        {"PCK-", {SPRITE, TAPPABLE, znCRandomPickableComponent::TYPE}, &typeid(znCRandomPickableComponent)},
        {"HDN-", {SPRITE, TAPPABLE, znCHiddenPickableComponent::TYPE}, &typeid(znCHiddenPickableComponent)},
        {"REQ-", {SPRITE, TAPPABLE, znCRequiredPickableComponent::TYPE}, &typeid(znCRequiredPickableComponent)},
        {"ANM-", {ANIMATING_SPRITE}},
        {"PAR-", {znCParticleEmitterComponent::TYPE}},
        {"HOT-", {SPRITE, TAPPABLE, znCHotComponent::TYPE}},
        {"SUB", {SPRITE, znCSubSceneNavigateComponent::TYPE}},
        {"NAV", {SPRITE, znCNavigateComponent::TYPE}},
        {"NAVP", {SPRITE, znCNavigateComponent::TYPE}},
        {"INS-", {SPRITE, znCDraggableKeyComponent::TYPE}},
        {"PRE-", {SPRITE, znCLockComponent::TYPE}},
        {"TSK-", {znCTaskComponent::TYPE}, &typeid(znCTaskComponent)},
        {"BNS-", {SPRITE, TAPPABLE, znCBonusComponent::TYPE}, &typeid(znCBonusComponent)},
        {"BNSL-", {SPRITE, TAPPABLE, znCBonusListComponent::TYPE}, &typeid(znCBonusListComponent)},
        {"BSL-", {SPRITE, TAPPABLE, znCBonusSilhouetteComponent::TYPE}, &typeid(znCBonusSilhouetteComponent)},
        {"JIG-", {SPRITE, znCUniqueId("znCJigsawMinigameComponent")}},
        {"ROT-", {SPRITE, znCUniqueId("znCRotateMinigameComponent")}},
        {"FLP-", {SPRITE, znCUniqueId("znCFlipsawMinigameComponent")}},
        {"PRS-", {SPRITE, znCUniqueId("znCPairsMinigameComponent")}},
        {"JTD-", {SPRITE, znCUniqueId("znCJoinTheDotsMinigameComponent")}},
        {"DIF-", {SPRITE, znCUniqueId("znCSpotTheDiffMinigameComponent"), ANIMATING_SPRITE}},
        {"SLD-", {SPRITE, znCUniqueId("znCSlidasquareMinigameComponent")}},
        {"TUT", {SPRITE, znCUniqueId("znCTutorialComponent")}},
    };
}
} // namespace

znCHogEntityFactory::~znCHogEntityFactory() = default;

void znCHogEntityFactory::create()
{
    instanceSet(std::unique_ptr<znCEntityFactory>(new znCHogEntityFactory), "znCHogEntityFactory");
}

znCHogEntityFactory* znCHogEntityFactory::instanceGet()
{
    return dynamic_cast<znCHogEntityFactory*>(znCEntityFactory::instanceGet());
}

void znCHogEntityFactory::constructionPlansRegisterDo()
{
    znCEntityFactory::constructionPlansRegisterDo();
    for (const Plan& plan : plansGet())
    {
        constructionPlanAdd(plan.mKey, plan.mComponents);
        if (plan.mIdentifier != nullptr)
            mEntityIdentifiers[plan.mKey] = plan.mIdentifier;
    }
}

std::string znCHogEntityFactory::entityPrefixGet(const std::string& pName)
{
    for (const auto& [key, plan] : constructionPlansGet())
        if (pName.starts_with(key))
            return key;
    return PREFIX_PLAIN;
}

znCEntity* znCHogEntityFactory::entityConstruct(const std::string& pName)
{
    const std::string prefix = entityPrefixGet(znCNameComponent::baseNameFromNodeName(pName));
    const std::vector<znCUniqueId>* plan = constructionPlanFind(prefix);
    if (plan == nullptr)
        return nullptr;
    auto entity = std::make_unique<znCEntity>(pName);
    entity->componentAdd(znCNameComponent::TYPE);
    planComponentsAdd(*entity, prefix, *plan);
    entity->treeInitialise();
    return entity.release();
}

// An entity lacks what isn't there for any of its kind; said once a kind, since a scene may hold hundreds.
void znCHogEntityFactory::planComponentsAdd(znCEntity& pEntity, const std::string& pPrefix,
                                            const std::vector<znCUniqueId>& pPlan)
{
    for (const znCUniqueId& type : pPlan)
    {
        if (znCComponentFactory::instanceGet()->componentExistsGet(type))
            pEntity.componentAdd(type);
        else if (mPrefixesReported.insert(pPrefix).second)
            ZN_LOG("%s: no component of a kind that all \"%s\" entities have.\n", pEntity.nameGet().c_str(),
                   pPrefix.c_str());
    }
}

znCHogEntityFactory::Identifier znCHogEntityFactory::entityIdentifierIdGet(const std::string& pPrefix) const
{
    const auto identifier = mEntityIdentifiers.find(pPrefix);
    ZN_ASSERT(identifier != mEntityIdentifiers.end(),
              "An identifier id for entities of type %s has not been registered.\n", pPrefix.c_str());
    return identifier != mEntityIdentifiers.end() ? identifier->second : nullptr;
}
