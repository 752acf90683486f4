#include "znappcore/src/znCComponentFactory.h"

#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/elements/znCButtonDelayComponent.h"
#include "znappcore/components/gui/elements/znCCheckBoxComponent.h"
#include "znappcore/components/gui/elements/znCCheckBoxGroupComponent.h"
#include "znappcore/components/gui/elements/znCCommodityButtonComponent.h"
#include "znappcore/components/gui/elements/znCKeyFocusComponent.h"
#include "znappcore/components/gui/elements/znCSliderComponent.h"
#include "znappcore/components/gui/znCConfirmBoxGui.h"
#include "znappcore/components/gui/znCMessageBoxGui.h"
#include "znappcore/components/gui/znCModalGuiComponent.h"
#include "znappcore/components/gui/znCNotificationsGui.h"
#include "znappcore/components/gui/znCRollOverGui.h"
#include "znappcore/components/gui/znCSplashScreenGui.h"
#include "znappcore/components/znCAnimatingSpriteComponent.h"
#include "znappcore/components/znCArcLineTrailComponent.h"
#include "znappcore/components/znCDragDropComponent.h"
#include "znappcore/components/znCHookedLineTrailComponent.h"
#include "znappcore/components/znCParticleEmitterComponent.h"
#include "znappcore/components/znCRevealingTextSpriteComponent.h"
#include "znappcore/components/znCScreenFadeComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/components/znCStraightLineTrailComponent.h"
#include "znappcore/components/znCTextEntryComponent.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/znIComponent.h"
#include "znappcore/znIMessageListener.h"
#include "zncore/debug/znIDebug.h"

namespace
{
std::unique_ptr<znCComponentFactory> sInstance;
}

znCComponentFactory::~znCComponentFactory() = default;

void znCComponentFactory::create()
{
    instanceSet(std::unique_ptr<znCComponentFactory>(new znCComponentFactory));
}

void znCComponentFactory::instanceSet(std::unique_ptr<znCComponentFactory> pFactory)
{
    ZN_ASSERT(sInstance == nullptr, "Already created znCComponentFactory.\n");
    sInstance = std::move(pFactory);
    sInstance->componentsRegister();
}

znCComponentFactory* znCComponentFactory::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znCComponentFactory::destroy()
{
    sInstance.reset();
}

void znCComponentFactory::componentsRegister()
{
    componentRegister<znCAnimatingSpriteComponent>();
    componentRegister<znCDragDropComponent>();
    componentRegister<znCParticleEmitterComponent>();
    componentRegister<znCScreenFadeComponent>();
    componentRegister<znCSpriteComponent>();
    componentRegister<znCStraightLineTrailComponent>();
    componentRegister<znCHookedLineTrailComponent>();
    componentRegister<znCArcLineTrailComponent>();
    componentRegister<znCTextSpriteComponent>();
    componentRegister<znCRevealingTextSpriteComponent>();
    componentRegister<znCRollOverGui>();
    componentRegister<znCConfirmBoxGui>();
    componentRegister<znCMessageBoxGui>();
    componentRegister<znCNotificationsGui>();
    componentRegister<znCSplashScreenGui>();
    componentRegister<znCCommodityButtonComponent>();
    componentRegister<znCButtonComponent>();
    componentRegister<znCButtonDelayComponent>();
    componentRegister<znCCheckBoxComponent>();
    componentRegister<znCCheckBoxGroupComponent>();
    componentRegister<znCModalGuiComponent>();
    componentRegister<znCSliderComponent>();
    componentRegister<znCTextEntryComponent>();
    componentRegister<znCKeyFocusComponent>();
}

void znCComponentFactory::componentRegister(const znCUniqueId& pType, Creator pCreator)
{
    mCreators.emplace(pType.idGet(), pCreator);
}

bool znCComponentFactory::componentExistsGet(const znCUniqueId& pType) const
{
    return mCreators.contains(pType.idGet());
}

znIComponent* znCComponentFactory::componentCreate(znCEntity* pEntity, const znCUniqueId& pType)
{
    const auto creator = mCreators.find(pType.idGet());
    ZN_ASSERT(creator != mCreators.end(), "No such component.\n");
    if (creator == mCreators.end())
        return nullptr;
    znIComponent* component = creator->second(pEntity);
    if (auto* listener = dynamic_cast<znIMessageListener*>(component))
        listener->messagesRegister();
    return component;
}
