#include "znhogcore/src/znCHogComponentFactory.h"

#include "znhogcore/components/gui/znCChoosePlayerGui.h"
#include "znhogcore/components/gui/znCDropOffPickListEntryGui.h"
#include "znhogcore/components/gui/znCEndMenuGui.h"
#include "znhogcore/components/gui/znCGameGui.h"
#include "znhogcore/components/gui/znCHighScoresGui.h"
#include "znhogcore/components/gui/znCMainMenuGui.h"
#include "znhogcore/components/gui/znCMapGui.h"
#include "znhogcore/components/gui/znCMapPopUpFVGui.h"
#include "znhogcore/components/gui/znCMapPopUpGui.h"
#include "znhogcore/components/gui/znCNewPlayerGui.h"
#include "znhogcore/components/gui/znCOptionsGui.h"
#include "znhogcore/components/gui/znCPauseMenuGui.h"
#include "znhogcore/components/gui/znCPickListGui.h"
#include "znhogcore/components/gui/znCPlayerSlotGui.h"
#include "znhogcore/components/gui/znCRollOverSubSceneGui.h"
#include "znhogcore/components/gui/znCRoundCongratulationsGui.h"
#include "znhogcore/components/gui/znCRoundScoreGui.h"
#include "znhogcore/components/gui/znCSilhouettePickListEntryGui.h"
#include "znhogcore/components/gui/znCSingleItemPickListEntryGui.h"
#include "znhogcore/components/znCAnimCollectionEffectComponent.h"
#include "znhogcore/components/znCBonusComponent.h"
#include "znhogcore/components/znCBonusEntityCountComponent.h"
#include "znhogcore/components/znCBonusListComponent.h"
#include "znhogcore/components/znCBonusSilhouetteComponent.h"
#include "znhogcore/components/znCDraggableKeyComponent.h"
#include "znhogcore/components/znCFadeCollectionEffectComponent.h"
#include "znhogcore/components/znCGhostSpriteComponent.h"
#include "znhogcore/components/znCHiddenPickableComponent.h"
#include "znhogcore/components/znCHogLevelLoaderComponent.h"
#include "znhogcore/components/znCHotComponent.h"
#include "znhogcore/components/znCLevelCompleteCheckerComponent.h"
#include "znhogcore/components/znCLockComponent.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCNavigateComponent.h"
#include "znhogcore/components/znCParticleCollectionEffectComponent.h"
#include "znhogcore/components/znCPickListTrailCollectionEffectComponent.h"
#include "znhogcore/components/znCRandomPickableComponent.h"
#include "znhogcore/components/znCRequiredPickableComponent.h"
#include "znhogcore/components/znCScoreTrailCollectionEffectComponent.h"
#include "znhogcore/components/znCSpinningCollectionEffectComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/components/znCSubSceneExitComponent.h"
#include "znhogcore/components/znCSubSceneNavigateComponent.h"
#include "znhogcore/components/znCSubSceneViewComponent.h"
#include "znhogcore/components/znCTappableCollectableComponent.h"
#include "znhogcore/components/znCTaskComponent.h"

void znCHogComponentFactory::create()
{
    instanceSet(std::unique_ptr<znCComponentFactory>(new znCHogComponentFactory));
}

void znCHogComponentFactory::componentsRegister()
{
    znCComponentFactory::componentsRegister();
    componentRegister<znCChoosePlayerGui>();
    componentRegister<znCDropOffPickListEntryGui>();
    componentRegister<znCGameGui>();
    componentRegister<znCHighScoresGui>();
    componentRegister<znCMainMenuGui>();
    componentRegister<znCNewPlayerGui>();
    componentRegister<znCOptionsGui>();
    componentRegister<znCPauseMenuGui>();
    componentRegister<znCPickListGui>();
    componentRegister<znCPlayerSlotGui>();
    componentRegister<znCSilhouettePickListEntryGui>();
    componentRegister<znCSingleItemPickListEntryGui>();
    componentRegister<znCRoundScoreGui>();
    componentRegister<znCMapGui>();
    componentRegister<znCMapPopUpGui>();
    componentRegister<znCMapPopUpFVGui>();
    componentRegister<znCEndMenuGui>();
    componentRegister<znCRollOverSubSceneGui>();
    componentRegister<znCAnimCollectionEffectComponent>();
    componentRegister<znCBonusComponent>();
    componentRegister<znCBonusListComponent>();
    componentRegister<znCBonusSilhouetteComponent>();
    componentRegister<znCDraggableKeyComponent>();
    componentRegister<znCFadeCollectionEffectComponent>();
    componentRegister<znCHiddenPickableComponent>();
    componentRegister<znCHogLevelLoaderComponent>();
    componentRegister<znCHotComponent>();
    componentRegister<znCLevelCompleteCheckerComponent>();
    componentRegister<znCLockComponent>();
    componentRegister<znCParticleCollectionEffectComponent>();
    componentRegister<znCNameComponent>();
    componentRegister<znCPickListTrailCollectionEffectComponent>();
    componentRegister<znCScoreTrailCollectionEffectComponent>();
    componentRegister<znCSpinningCollectionEffectComponent>();
    componentRegister<znCRandomPickableComponent>();
    componentRegister<znCRequiredPickableComponent>();
    componentRegister<znCSubSceneComponent>();
    componentRegister<znCSubSceneExitComponent>();
    componentRegister<znCSubSceneNavigateComponent>();
    componentRegister<znCSubSceneViewComponent>();
    componentRegister<znCTappableCollectableComponent>();
    componentRegister<znCTaskComponent>();
    componentRegister<znCBonusEntityCountComponent>();
    componentRegister<znCNavigateComponent>();
    componentRegister<znCGhostSpriteComponent>();
    componentRegister<znCRoundCongratulationsGui>();
}
