#include "znhogcore/src/znCHogComponentFactory.h"

#include "znhogcore/components/gui/znCDropOffPickListEntryGui.h"
#include "znhogcore/components/gui/znCMainMenuGui.h"
#include "znhogcore/components/gui/znCNewPlayerGui.h"
#include "znhogcore/components/gui/znCOptionsGui.h"
#include "znhogcore/components/gui/znCPickListGui.h"
#include "znhogcore/components/gui/znCSilhouettePickListEntryGui.h"
#include "znhogcore/components/gui/znCSingleItemPickListEntryGui.h"
#include "znhogcore/components/znCAnimCollectionEffectComponent.h"
#include "znhogcore/components/znCBonusComponent.h"
#include "znhogcore/components/znCBonusListComponent.h"
#include "znhogcore/components/znCBonusSilhouetteComponent.h"
#include "znhogcore/components/znCDraggableKeyComponent.h"
#include "znhogcore/components/znCFadeCollectionEffectComponent.h"
#include "znhogcore/components/znCHiddenPickableComponent.h"
#include "znhogcore/components/znCHogLevelLoaderComponent.h"
#include "znhogcore/components/znCHotComponent.h"
#include "znhogcore/components/znCLockComponent.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCParticleCollectionEffectComponent.h"
#include "znhogcore/components/znCRandomPickableComponent.h"
#include "znhogcore/components/znCRequiredPickableComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/components/znCTappableCollectableComponent.h"
#include "znhogcore/components/znCTaskComponent.h"

void znCHogComponentFactory::create()
{
    instanceSet(std::unique_ptr<znCComponentFactory>(new znCHogComponentFactory));
}

void znCHogComponentFactory::componentsRegister()
{
    znCComponentFactory::componentsRegister();
    componentRegister<znCDropOffPickListEntryGui>();
    componentRegister<znCMainMenuGui>();
    componentRegister<znCNewPlayerGui>();
    componentRegister<znCOptionsGui>();
    componentRegister<znCPickListGui>();
    componentRegister<znCSilhouettePickListEntryGui>();
    componentRegister<znCSingleItemPickListEntryGui>();
    componentRegister<znCAnimCollectionEffectComponent>();
    componentRegister<znCBonusComponent>();
    componentRegister<znCBonusListComponent>();
    componentRegister<znCBonusSilhouetteComponent>();
    componentRegister<znCDraggableKeyComponent>();
    componentRegister<znCFadeCollectionEffectComponent>();
    componentRegister<znCHiddenPickableComponent>();
    componentRegister<znCHogLevelLoaderComponent>();
    componentRegister<znCHotComponent>();
    componentRegister<znCLockComponent>();
    componentRegister<znCParticleCollectionEffectComponent>();
    componentRegister<znCNameComponent>();
    componentRegister<znCRandomPickableComponent>();
    componentRegister<znCRequiredPickableComponent>();
    componentRegister<znCSubSceneComponent>();
    componentRegister<znCTappableCollectableComponent>();
    componentRegister<znCTaskComponent>();
}
