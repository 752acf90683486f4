#include "znhogcore/src/znCHogEntityFactory.h"

#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znhogcore/components/znCBonusListComponent.h"
#include "znhogcore/components/znCDraggableKeyComponent.h"
#include "znhogcore/components/znCHotComponent.h"
#include "znhogcore/components/znCLockComponent.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCRandomPickableComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/components/znCTappableCollectableComponent.h"
#include "znhogcore/components/znCTaskComponent.h"

#include <memory>

namespace
{
class znCHogEntityFactoryTest : public znCHogTest
{
protected:
    static znCHogEntityFactory& factory() { return *znCHogEntityFactory::instanceGet(); }
};

TEST_F(znCHogEntityFactoryTest, findsThePlanByTheStartOfTheName)
{
    const std::pair<const char*, const char*> cases[] = {
        {"Background", "Background"},
        {"Background-cellar", "Background"},
        {"PCK-boat", "PCK-"},
        {"PCKboat", "MASK-"},
        {"pck-boat", "MASK-"},
        {"BNS-cup", "BNS-"},
        {"BNSL-cup", "BNSL-"},
        {"BSL-cup", "BSL-"},
        {"BNS", "MASK-"},
        {"NAV-quay", "NAV"},
        {"NAVP-quay", "NAV"}, // sorts before the longer one; the plans are the same
        {"SUB3", "SUB"},
        {"TUT", "TUT"},
        {"MASK-wall", "MASK-"},
        {"wall", "MASK-"},
        {"", "MASK-"},
        {"DIF-a", "DIF-"},
        {"SLD-a", "SLD-"},
    };
    for (const auto& [name, key] : cases)
        EXPECT_EQ(factory().entityPrefixGet(name), key) << name;
}

TEST_F(znCHogEntityFactoryTest, buildsWhatTheNameSays)
{
    const znCUniqueId sprite = znCSpriteComponent::TYPE;
    const znCUniqueId tappable = znCTappableCollectableComponent::TYPE;
    const std::pair<const char*, std::vector<znCUniqueId>> cases[] = {
        {"Background.png", {sprite, znCSubSceneComponent::TYPE}},
        {"PCK-boat-m2.png", {sprite, tappable, znCRandomPickableComponent::TYPE}},
        {"PCK-CMN-boat.png", {sprite, tappable, znCRandomPickableComponent::TYPE}},
        {"HOT-gull.png", {sprite, tappable, znCHotComponent::TYPE}},
        {"BNSL-cup.png", {sprite, tappable, znCBonusListComponent::TYPE}},
        {"INS-oil.png", {sprite, znCDraggableKeyComponent::TYPE}},
        {"PRE-oil-lamp.png", {sprite, znCLockComponent::TYPE}},
        {"TSK-light.png", {znCTaskComponent::TYPE}},
        {"driftwood.png", {sprite}},
        {"PCK-boat.png.PRE-", {sprite, tappable, znCRandomPickableComponent::TYPE}},
    };
    for (const auto& [name, types] : cases)
    {
        const std::unique_ptr<znCEntity> entity(factory().entityConstruct(name));
        EXPECT_EQ(entity->nameGet(), name);
        EXPECT_NE(entity->componentGet(znCNameComponent::TYPE), nullptr) << name;
        for (const znCUniqueId& type : {sprite, tappable, znCRandomPickableComponent::TYPE, znCHotComponent::TYPE,
                                        znCBonusListComponent::TYPE, znCDraggableKeyComponent::TYPE,
                                        znCLockComponent::TYPE, znCTaskComponent::TYPE, znCSubSceneComponent::TYPE})
            EXPECT_EQ(entity->componentGet(type) != nullptr, std::count(types.begin(), types.end(), type) != 0)
                << name << type.idGet();
    }
}

TEST_F(znCHogEntityFactoryTest, knowsWhatPickListsCanList)
{
    for (const char* key : {"PCK-", "HDN-", "REQ-", "TSK-", "BNS-", "BNSL-", "BSL-"})
        EXPECT_NE(factory().entityIdentifierIdGet(key), nullptr) << key;
    EXPECT_EQ(*factory().entityIdentifierIdGet("TSK-"), typeid(znCTaskComponent));
    EXPECT_EQ(errorsTake(), std::vector<std::string>());
    for (const char* key : {"HOT-", "PCK", ""})
        EXPECT_EQ(factory().entityIdentifierIdGet(key), nullptr);
    EXPECT_EQ(errorsTake().front(), "An identifier id for entities of type HOT- has not been registered.");
}
} // namespace
